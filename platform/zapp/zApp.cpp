// platform/zapp/zApp.cpp
#include "platform/zapp/zApp.h"

#include "platform/zapp/ConsoleToolkit.h"

#include <cassert>
#include <utility>

zApp* _app = nullptr;

namespace {

zToolkit* chosenToolkit = nullptr;

zToolkit& toolkit()
{
    // Never destroyed: an exit handler may still have something to report.
    static ConsoleToolkit& console = *new ConsoleToolkit;
    return chosenToolkit ? *chosenToolkit : console;
}

const char* orEmpty(const char* text) { return text ? text : ""; }

} // namespace

zToolkit* zUseToolkit(zToolkit* toolkit) { return std::exchange(chosenToolkit, toolkit); }

zApp::zApp(void* instance, void* previous, const char* commandLine, int show)
    : started_(&toolkit())
    , instance_(instance)
    , previous_(previous)
    , commandLine_(orEmpty(commandLine))
    , show_(show)
{
    assert(!_app);
    started_->start();
    _app = this;
}

zApp::~zApp()
{
    _app = nullptr;
    started_->stop();
}

void zApp::initIntPack()
{
    if (!std::exchange(prepared_, true))
        toolkit().prepareControls();
}

void zApp::go()
{
    if (!quitAsked_)
        toolkit().runLoop();
}

void zApp::quit()
{
    // Kept here because a toolkit forgets what it is told before its loop runs.
    quitAsked_ = true;
    toolkit().quitLoop();
}

zMessage::zMessage(zWindow* parent, const char* text, const char* caption, long style)
{
    toolkit().messageBox(parent, orEmpty(text), orEmpty(caption), style);
}
