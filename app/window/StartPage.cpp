// app/window/StartPage.cpp
#include "app/window/StartPage.h"

#include <QFontDatabase>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

StartPage::StartPage(QWidget* parent)
    : QWidget(parent)
    , state_(new QLabel(tr("No database is open."), this))
    , hint_(new QLabel(tr("To make a new one and bring wells in, type in a terminal:"), this))
    , commands_(new QLabel(QStringLiteral("zonaris create my.zdb\n"
                                          "zonaris --database my.zdb import FOLDER"),
          this))
{
    state_->setObjectName(QStringLiteral("startState"));
    commands_->setObjectName(QStringLiteral("startCommands"));
    commands_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    commands_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* open = new QPushButton(tr("&Open database..."), this);
    auto* layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(state_, 0, Qt::AlignHCenter);
    layout->addWidget(open, 0, Qt::AlignHCenter);
    layout->addSpacing(open->sizeHint().height());
    layout->addWidget(hint_, 0, Qt::AlignHCenter);
    layout->addWidget(commands_, 0, Qt::AlignHCenter);
    layout->addStretch();
    for (QLabel* label : {state_, hint_, commands_})
        label->setTextFormat(Qt::PlainText);
    connect(open, &QPushButton::clicked, this, &StartPage::openAsked);
}

void StartPage::showNoWells(const QString& database, const QString& option)
{
    state_->setText(tr("%1 holds no wells yet.").arg(database));
    hint_->setText(tr("To bring wells in, type in a terminal, and then press F5 here:"));
    commands_->setText(QStringLiteral("zonaris %1 import FOLDER").arg(option));
}
