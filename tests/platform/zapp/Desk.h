// tests/platform/zapp/Desk.h
#pragma once

#include "platform/zapp/zBoxes.h"
#include "tests/platform/zapp/Recorder.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

enum class BoxKind { List, Combo };

/// A box with what the seam does not offer on both kinds alike.
struct DeskBox {
    std::shared_ptr<zBox> box;
    /// `clear` or `reset`.
    std::function<void()> empty;
    /// The texts as the user sees them.
    std::function<std::vector<std::string>()> rows;
};

/// One toolkit with a user in front of it, so that the same cases run on each. A test program
/// links one of them.
class Desk {
public:
    virtual ~Desk() = default;
    virtual zToolkit& toolkit() = 0;
    /// Has the event loop run `task`.
    virtual void later(std::function<void()> task) = 0;
    /// Shows a message, answers it and returns what was seen, as "caption: text"; "" when nothing.
    virtual std::string seen(const char* text, const char* caption) = 0;
    virtual DeskBox makeBox(BoxKind kind) = 0;
};

std::unique_ptr<Desk> makeDesk();

/// A desk with its application object.
struct DeskWithApp {
    DeskWithApp()
        : desk(makeDesk())
        , serving(&desk->toolkit())
        , app(std::make_unique<zApp>(nullptr, nullptr, "", 1))
    {
    }

    std::unique_ptr<Desk> desk;
    Serving serving;
    std::unique_ptr<zApp> app;
};
