// app/OpenMainWindow.cpp
#include "app/OpenMainWindow.h"

#include "app/shell/OpenDatabase.h"
#include "app/window/MainWindow.h"
#include "db/ErrorReporter.h"
#include "db/Session.h"
#include "platform/zapp/qt/QtToolkit.h"
#include "platform/zapp/qt/QtWindow.h"

#include <QCoreApplication>
#include <QPixmap>

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

/// Null after a reported failure.
std::unique_ptr<MainWindow> makeWindow(const ConnectionSettings& settings)
{
    const std::string error = settings.isNamed() ? openDatabase(settings) : std::string();
    if (!error.empty()) {
        reportError(error);
        return nullptr;
    }
    auto main = std::make_unique<MainWindow>(settings, desktopServices());
    // The message boxes of the first reading already belong to the window.
    _app->setRootWindow(windowOf(main.get()));
    main->show();
    if (settings.isNamed())
        main->showDatabase();
    return main;
}

bool savePicture(MainWindow& main, const std::string& file)
{
    QCoreApplication::processEvents(); // lays the panes out
    if (main.grab().save(QString::fromStdString(file), "PNG"))
        return true;
    reportError("The picture " + file + " could not be written.");
    return false;
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
        std::unique_ptr<MainWindow> main = makeWindow(settings);
        if (main)
            return std::make_unique<MainRoot>(std::move(main));
        app.setExitStatus(1);
        return nullptr;
    });
}

int saveMainWindow(
    const StartArguments& start, const ConnectionSettings& settings, const std::string& pictureFile)
{
    return run(start, [&](zApp& app) -> std::unique_ptr<RootWindow> {
        const std::unique_ptr<MainWindow> main = makeWindow(settings);
        if (!main || !savePicture(*main, pictureFile))
            app.setExitStatus(1);
        app.setRootWindow(nullptr);
        return nullptr;
    });
}
