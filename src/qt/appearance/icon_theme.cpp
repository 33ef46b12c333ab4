#include "qt/appearance/icon_theme.h"

#include "qt/core/convert.h"

#include <QDir>
#include <QIcon>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <iterator>

namespace quill {
namespace {

const QString probe = QStringLiteral("folder");

bool Works(const QString& theme) {
    if (theme.isEmpty()) return false;
    QIcon::setThemeName(theme);
    return QIcon::hasThemeIcon(probe);
}

// What the two common desktops write down, in their own files.
QString NamedByDesktop(const QString& file, const QString& key) {
    const QString path = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, file);
    return path.isEmpty() ? QString() : QSettings(path, QSettings::IniFormat).value(key).toString();
}

bool IsInstalled(const QString& theme) {
    const auto folders = QIcon::themeSearchPaths();
    return std::any_of(folders.begin(), folders.end(), [&](const QString& folder) {
        return QFile::exists(folder + QLatin1Char('/') + theme + QStringLiteral("/index.theme"));
    });
}

// Pixels. Only these are asked for: below, and at odd sizes that are filled from below, many themes draw thin
// dark lines for the light ground of a toolbar.
constexpr int coloredSizes[] = {32, 64, 128, 256};

int ColoredSize(int side) {
    const auto* enough = std::find_if(std::begin(coloredSizes), std::end(coloredSizes),
                                      [&](int size) { return size >= side; });
    return enough == std::end(coloredSizes) ? side : *enough;
}

QImage DrawIcon(const QIcon& icon, int side) {
    const int drawn = ColoredSize(side);
    const QImage image = icon.pixmap(QSize(drawn, drawn), 1.0).toImage();
    if (image.isNull()) return image;
    return image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

QImage IconTheme::Draw(const std::vector<std::string>& names, int side) {
    if (!chosen_) Choose();
    for (const auto& name : names) {
        const QIcon icon = QIcon::fromTheme(Text(name));
        if (!icon.isNull()) return DrawIcon(icon, side);
    }
    return {};
}

void IconTheme::Choose() {
    chosen_ = true;
    if (QIcon::hasThemeIcon(probe)) return;
    const QString given = QIcon::themeName();
    if (Works(NamedByDesktop(QStringLiteral("gtk-3.0/settings.ini"),
                             QStringLiteral("Settings/gtk-icon-theme-name"))))
        return;
    if (Works(NamedByDesktop(QStringLiteral("kdeglobals"), QStringLiteral("Icons/Theme")))) return;
    for (const char* theme :
         {"breeze", "Papirus", "Adwaita", "Yaru", "Mint-Y", "elementary-xfce", "oxygen", "gnome"})
        if (IsInstalled(QString::fromLatin1(theme)) && Works(QString::fromLatin1(theme))) return;
    QIcon::setThemeName(given);
}

} // namespace quill
