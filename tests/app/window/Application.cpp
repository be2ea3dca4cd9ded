// tests/app/window/Application.cpp
#include <gtest/gtest.h>

#include <QApplication>

#include <clocale>

namespace {

/// The one QApplication of a test program. It must go before the process does, since Qt's own
/// static objects go then.
class Application : public testing::Environment {
public:
    void SetUp() override
    {
        application_ = std::make_unique<QApplication>(argc_, argv_);
        std::setlocale(LC_NUMERIC, "C"); // as the toolkit does
    }
    void TearDown() override { application_.reset(); }

private:
    int argc_ = 1;
    char name_[8] = "zonaris";
    char* argv_[2] = {name_, nullptr};
    std::unique_ptr<QApplication> application_;
};

const testing::Environment* const registered =
    testing::AddGlobalTestEnvironment(new Application); // NOLINT: the framework owns it

} // namespace
