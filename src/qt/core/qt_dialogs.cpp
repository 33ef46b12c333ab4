#include "qt/core/qt_dialogs.h"

#include "qt/appearance/settings_form.h"
#include "qt/containers/frmConProperties.h"
#include "qt/core/convert.h"
#include "qt/notes/text_form.h"
#include "qt/shortcuts/frmEditLink.h"
#include "qt/shortcuts/frmInternetShortcut.h"

#include <QColorDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>

namespace quill {
namespace {

Color ColorOf(const QColor& color) {
    return Rgb(color.red(), color.green(), color.blue());
}

} // namespace

bool QtDialogs::Show(frmConProperties& dialog) {
    if (asker_.IsEnding()) return false;
    frmConPropertiesForm form(dialog, display_.Get().Looks, asker_.Owner());
    if (asker_.Ask(form) == QDialog::Accepted) return true;
    dialog.CancelButton_Click();
    return false;
}

bool QtDialogs::Show(frmSettings& dialog) {
    if (asker_.IsEnding()) return false;
    frmSettingsForm form(dialog, asker_.Owner());
    return asker_.Ask(form) == QDialog::Accepted;
}

bool QtDialogs::Show(frmEditLink& dialog) {
    if (asker_.IsEnding()) return false;
    frmEditLinkForm form(dialog, asker_.Owner());
    return asker_.Ask(form) == QDialog::Accepted;
}

bool QtDialogs::Show(frmInternetShortcut& dialog) {
    if (asker_.IsEnding()) return false;
    frmInternetShortcutForm form(dialog, asker_.Owner());
    return asker_.Ask(form) == QDialog::Accepted;
}

bool QtDialogs::Show(TextQuestion& question) {
    if (asker_.IsEnding()) return false;
    TextForm form(question, asker_.Owner());
    return asker_.Ask(form) == QDialog::Accepted;
}

std::optional<std::string> QtDialogs::OpenFolder(const FileQuestion& question) {
    if (asker_.IsEnding()) return std::nullopt;
    const QString folder = question.Folder.empty() ? QDir::homePath() : Text(question.Folder);
    QFileDialog chooser(asker_.Owner(), Text(question.Title), folder);
    chooser.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::ShowDirsOnly);
    chooser.setFileMode(QFileDialog::Directory);
    if (asker_.Ask(chooser) != QDialog::Accepted || chooser.selectedFiles().isEmpty()) return std::nullopt;
    return QFile::encodeName(chooser.selectedFiles().constFirst()).toStdString();
}

std::optional<std::string> QtDialogs::OpenFile(const FileQuestion& question) {
    if (asker_.IsEnding()) return std::nullopt;
    const QString folder = question.Folder.empty() ? QDir::homePath() : Text(question.Folder);
    QFileDialog chooser(asker_.Owner(), Text(question.Title), folder);
    chooser.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::HideNameFilterDetails);
    chooser.setFileMode(QFileDialog::ExistingFile);
    // The pattern is every name, also one without a dot.
    chooser.setNameFilter(Text(question.FilterCaption) + QStringLiteral(" (*)"));
    if (asker_.Ask(chooser) != QDialog::Accepted || chooser.selectedFiles().isEmpty()) return std::nullopt;
    return QFile::encodeName(chooser.selectedFiles().constFirst()).toStdString();
}

std::optional<Color> QtDialogs::ChooseColor(Color now, const std::string& title) {
    if (asker_.IsEnding()) return std::nullopt;
    QColorDialog chooser(Ink(now), asker_.Owner());
    chooser.setOption(QColorDialog::DontUseNativeDialog);
    chooser.setWindowTitle(Text(title));
    if (asker_.Ask(chooser) != QDialog::Accepted) return std::nullopt;
    return ColorOf(chooser.currentColor());
}

} // namespace quill
