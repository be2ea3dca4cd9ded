// platform/zapp/qt/QtToolkit.cpp
#include "platform/zapp/qt/QtToolkit.h"

#include "platform/zapp/ConsoleToolkit.h"
#include "platform/zapp/qt/QtWindow.h"

#include <QApplication>
#include <QEventLoop>
#include <QMessageBox>
#include <QPointer>

#include <clocale>

namespace {

constexpr long kIconBits = 0xF0;

QMessageBox::Icon iconOf(long style)
{
    return (style & kIconBits) == MB_ICONHAND ? QMessageBox::Critical : QMessageBox::NoIcon;
}

} // namespace

QtToolkit::QtToolkit(int argc, const char* const* argv)
    : arguments_(argv, argv + argc)
{
}

QtToolkit::~QtToolkit() = default;

void QtToolkit::start()
{
    argv_.clear();
    for (std::string& argument : arguments_)
        argv_.push_back(argument.data());
    argv_.push_back(nullptr);
    argc_ = static_cast<int>(arguments_.size());
    application_ = std::make_unique<QApplication>(argc_, argv_.data());
    // Qt takes over the user's locale; with a decimal comma in it no number would be read or
    // written as the database and the files have it.
    std::setlocale(LC_NUMERIC, "C");
}

void QtToolkit::runLoop()
{
    // Not QApplication::exec. It ends with the last window, which may be a message box, and its
    // exit also closes every box that is open or opens on the way out, unread.
    QEventLoop loop;
    loop_ = &loop;
    loop.exec();
    loop_ = nullptr;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void QtToolkit::quitLoop()
{
    if (loop_)
        loop_->quit();
}

void QtToolkit::messageBox(zWindow* parent, const char* text, const char* caption, long style)
{
    if (!application_) {
        ConsoleToolkit().messageBox(parent, text, caption, style);
        return;
    }
    // On the heap and watched, because the parent takes the box along if it goes meanwhile.
    const QPointer<QMessageBox> box = new QMessageBox(widgetOf(parent));
    box->setIcon(iconOf(style));
    box->setWindowTitle(QString::fromUtf8(caption));
    box->setTextFormat(Qt::PlainText);
    box->setText(QString::fromUtf8(text));
    box->exec();
    delete box;
}

void QtToolkit::stop() { application_.reset(); }
