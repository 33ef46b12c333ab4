// FilePropertiesForm: a plain box about a file, for desktops whose file manager has none that can be asked.
// It shows and changes nothing.
#pragma once

#include "qt/shortcuts/file_facts.h"

#include <QDialog>

class QFormLayout;

namespace quill {

class Catalogue;

class FilePropertiesForm : public QDialog {
public:
    FilePropertiesForm(const Catalogue& catalogue, const std::string& path, const FileFacts& facts,
                       QWidget* parent);

private:
    void AddFact(const char* caption, const QString& text);

    const Catalogue& catalogue_;
    QFormLayout* facts_;
};

// Over the dialog that is open; when that has been closed meanwhile, nobody wants to know any more.
void ShowFilePropertiesForm(const Catalogue& catalogue, const std::string& path, const FileFacts& facts);

} // namespace quill
