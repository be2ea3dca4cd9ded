// app/window/WindowServices.cpp
#include "app/window/WindowServices.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QProcess>

namespace {

QString chooseFile(QWidget* parent, const QString& folder)
{
    return QFileDialog::getOpenFileName(parent, QFileDialog::tr("Open database"), folder,
        QFileDialog::tr("Databases (*.zdb);;All files (*)"));
}

bool startProgram(const QStringList& arguments)
{
    return QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments);
}

} // namespace

WindowServices desktopServices() { return {chooseFile, startProgram}; }
