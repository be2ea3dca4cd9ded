// app/window/RecentMenu.cpp
#include "app/window/RecentMenu.h"

#include "app/shell/SettingsFile.h"

#include <QFileInfo>

namespace {

// A folder may hold an ampersand, which menus take for the mark of a key.
QString menuText(const QString& file)
{
    return QString(file).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

RecentMenu::RecentMenu(const QString& title, QWidget* parent)
    : QMenu(title, parent)
{
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::fill);
}

void RecentMenu::fill()
{
    clear();
    Settings settings;
    const std::string problem = readSettings(&settings);
    for (const std::string& path : settings.recent) {
        const QString file = QString::fromStdString(path);
        if (QFileInfo::exists(file))
            addAction(menuText(file), this, [this, file] { emit chosen(file); });
    }
    if (isEmpty())
        addAction(problem.empty() ? tr("None yet") : QString::fromStdString(problem))
            ->setEnabled(false);
}
