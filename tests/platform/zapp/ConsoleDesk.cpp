// tests/platform/zapp/ConsoleDesk.cpp
#include "tests/platform/zapp/Desk.h"

#include "platform/zapp/ConsoleBoxes.h"
#include "platform/zapp/ConsoleToolkit.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

class ConsoleDesk : public Desk {
public:
    zToolkit& toolkit() override { return console_; }
    void later(std::function<void()> task) override { console_.post(std::move(task)); }
    std::string seen(const char* text, const char* caption) override
    {
        testing::internal::CaptureStderr();
        zMessage(nullptr, text, caption, MB_ICONHAND);
        std::string line = testing::internal::GetCapturedStderr();
        if (line.ends_with('\n'))
            line.pop_back();
        return line;
    }
    DeskBox makeBox(BoxKind kind) override
    {
        if (kind == BoxKind::List) {
            auto box = std::make_shared<ConsoleListBox>();
            return {box, [box] { box->clear(); }, [box] { return box->rows(); }};
        }
        auto box = std::make_shared<ConsoleComboBox>();
        return {box, [box] { box->reset(); }, [box] { return box->rows(); }};
    }

private:
    ConsoleToolkit console_;
};

} // namespace

std::unique_ptr<Desk> makeDesk() { return std::make_unique<ConsoleDesk>(); }
