#include "qt/shortcuts/file_properties_form.h"

#include "core/tr.h"
#include "qt/core/convert.h"
#include "system/size_texts.h"

#include <QApplication>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace quill {
namespace {

constexpr int factWidth = 320; // pixels

QString DateText(std::int64_t seconds) {
    if (seconds == 0) return {};
    return QLocale().toString(QDateTime::fromSecsSinceEpoch(seconds), QLocale::LongFormat);
}

QString SizeText(const FileFacts& facts) {
    if (facts.IsFolder) return {};
    const auto low = static_cast<std::uint32_t>(facts.Bytes);
    const auto high = static_cast<std::int32_t>(facts.Bytes >> 32);
    return Text(NumberInKB(low, high));
}

} // namespace

FilePropertiesForm::FilePropertiesForm(const Catalogue& catalogue, const std::string& path,
                                       const FileFacts& facts, QWidget* parent)
    : QDialog(parent), catalogue_(catalogue), facts_(new QFormLayout) {
    setObjectName(QStringLiteral("FilePropertiesForm"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(Text(Tr(catalogue, "File Properties")));
    auto* whole = new QVBoxLayout(this);
    whole->addLayout(facts_);
    AddFact("Path:", Text(path));
    AddFact("Error:", Text(facts.Error));
    AddFact("Type:", Text(facts.Type));
    if (facts.Error.empty()) {
        AddFact("Size:", SizeText(facts));
        AddFact("Modified:", DateText(facts.Modified));
        AddFact("Created:", DateText(facts.Created));
        AddFact("Permissions:", Text(PermissionText(facts.Permissions)));
        AddFact("Owner:", Text(facts.Owner));
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });
    whole->addStretch();
    whole->addWidget(buttons);
}

// What is not known has no line.
void FilePropertiesForm::AddFact(const char* caption, const QString& text) {
    if (text.isEmpty()) return;
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    label->setMinimumWidth(factWidth);
    label->setAccessibleName(Text(Tr(catalogue_, caption)) + QLatin1Char(' ') + text);
    facts_->addRow(Text(Tr(catalogue_, caption)), label);
}

void ShowFilePropertiesForm(const Catalogue& catalogue, const std::string& path, const FileFacts& facts) {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) return;
    (new FilePropertiesForm(catalogue, path, facts, dialog))->open();
}

} // namespace quill
