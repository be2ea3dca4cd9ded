// app/OpenMainWindow.cpp
#include "app/OpenMainWindow.h"

#include "app/shell/FindWell.h"
#include "app/shell/SettingsFile.h"
#include "app/window/MainWindow.h"
#include "app/window/OpenAndRemember.h"
#include "app/window/WellsPage.h"
#include "db/ErrorReporter.h"
#include "db/Session.h"
#include "platform/zapp/qt/QtToolkit.h"
#include "platform/zapp/qt/QtWindow.h"

#include <QApplication>
#include <QPixmap>

#include <filesystem>
#include <iostream>

namespace {

// The command line is read already, and Qt would misread what is not its own.
constexpr const char* kQtArguments[] = {"zonaris"};

class MainRoot : public RootWindow {
public:
    explicit MainRoot(std::unique_ptr<MainWindow> main)
        : main_(std::move(main))
    {
    }
    zWindow* window() override { return windowOf(main_.get()); }

private:
    std::unique_ptr<MainWindow> main_;
};

/// The database that was used last, for a start without one; none when its file is gone.
ConnectionSettings lastUsed(ConnectionSettings settings)
{
    Settings known;
    std::error_code ignored;
    const std::string problem = readSettings(&known);
    if (problem.empty() && !known.recent.empty()
        && std::filesystem::exists(known.recent.front(), ignored))
        settings.databaseFile = known.recent.front();
    return settings;
}

/// Null after a reported failure, unless nobody asked for this database: then without one.
std::unique_ptr<MainWindow> makeWindow(ConnectionSettings settings, bool asked = true)
{
    const std::string error = settings.isNamed() ? openAndRemember(settings) : std::string();
    if (!error.empty()) {
        reportError(error);
        if (asked)
            return nullptr;
        settings.databaseFile.clear();
    }
    auto main = std::make_unique<MainWindow>(settings, desktopServices());
    // The message boxes of the first reading already belong to the window.
    _app->setRootWindow(windowOf(main.get()));
    main->show();
    if (settings.isNamed())
        main->showDatabase();
    return main;
}

// The colours that a dark desktop gives its windows.
QPalette darkPalette()
{
    const QColor window(0x35, 0x35, 0x35), base(0x23, 0x23, 0x23), text(Qt::white);
    QPalette palette(text, window, Qt::black, Qt::black, Qt::darkGray, text, text, base, window);
    palette.setColor(QPalette::AlternateBase, QColor(0x2b, 0x2b, 0x2b));
    palette.setColor(QPalette::Mid, QColor(0x60, 0x60, 0x60));
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, Qt::gray);
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    palette.setColor(QPalette::HighlightedText, text);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::gray);
    palette.setColor(QPalette::Disabled, QPalette::Text, Qt::gray);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::gray);
    return palette;
}

// What is wrong; empty: nothing.
std::string show(MainWindow& main, const PictureOptions& picture)
{
    if (picture.width > 0 && picture.height > 0)
        main.resize(picture.width, picture.height);
    std::string error;
    const long well = picture.well.empty() ? 0 : findWell(picture.well, &error);
    if (well != 0)
        main.wells().chooseWell(well);
    if (error.empty() && !picture.view.empty()
        && !main.wells().openView(QString::fromStdString(picture.view)))
        error = "No tab is called " + picture.view + '.';
    while (main.wells().isReading())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return error;
}

bool savePicture(MainWindow& main, const PictureOptions& picture)
{
    std::string error = show(main, picture);
    QCoreApplication::processEvents(); // lays the panes out
    if (error.empty() && !main.grab().save(QString::fromStdString(picture.file), "PNG"))
        error = "The picture " + picture.file + " could not be written.";
    if (!error.empty()) // nobody is there to close a box
        std::cerr << "zonaris: " << error << '\n';
    return error.empty();
}

/// The session lasts as long as the window.
int run(const StartArguments& start, const RootWindowMaker& make)
{
    QtToolkit toolkit(1, kQtArguments);
    zToolkit* before = zUseToolkit(&toolkit);
    const int status = zonarisEntry(
        start.instance, start.previous, start.commandLine.c_str(), start.show, windowRoutine(make));
    zUseToolkit(before);
    dbDisconnect();
    return status;
}

} // namespace

int openMainWindow(const StartArguments& start, const ConnectionSettings& settings)
{
    return run(start, [&](zApp& app) -> std::unique_ptr<RootWindow> {
        std::unique_ptr<MainWindow> main =
            settings.isNamed() ? makeWindow(settings) : makeWindow(lastUsed(settings), false);
        if (main)
            return std::make_unique<MainRoot>(std::move(main));
        app.setExitStatus(1);
        return nullptr;
    });
}

int saveMainWindow(
    const StartArguments& start, const ConnectionSettings& settings, const PictureOptions& picture)
{
    return run(start, [&](zApp& app) -> std::unique_ptr<RootWindow> {
        if (picture.dark)
            QApplication::setPalette(darkPalette());
        const std::unique_ptr<MainWindow> main = makeWindow(settings);
        if (!main || !savePicture(*main, picture))
            app.setExitStatus(1);
        app.setRootWindow(nullptr);
        return nullptr;
    });
}
