// app/window/StartPage.cpp
#include "app/window/StartPage.h"

#include <QFontDatabase>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QLabel* makeCommands(QWidget* parent)
{
    auto* commands = new QLabel(QStringLiteral("zonaris create my.zdb\n"
                                               "zonaris --database my.zdb import FOLDER"),
        parent);
    commands->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    commands->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return commands;
}

} // namespace

StartPage::StartPage(QWidget* parent)
    : QWidget(parent)
{
    auto* open = new QPushButton(tr("&Open database..."), this);
    auto* layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(new QLabel(tr("No database is open."), this), 0, Qt::AlignHCenter);
    layout->addWidget(open, 0, Qt::AlignHCenter);
    layout->addSpacing(open->sizeHint().height());
    layout->addWidget(new QLabel(tr("To make a new one and bring wells in, in a terminal:"), this),
        0, Qt::AlignHCenter);
    layout->addWidget(makeCommands(this), 0, Qt::AlignHCenter);
    layout->addStretch();
    connect(open, &QPushButton::clicked, this, &StartPage::openAsked);
}
