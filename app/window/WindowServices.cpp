// app/window/WindowServices.cpp
#include "app/window/WindowServices.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>
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

Unsaved askUnsaved(QWidget* parent, const QString& text)
{
    const auto answer = QMessageBox::question(parent, QCoreApplication::applicationName(), text,
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save)
        return Unsaved::Save;
    return answer == QMessageBox::Discard ? Unsaved::Discard : Unsaved::Stay;
}

} // namespace

WindowServices desktopServices() { return {chooseFile, startProgram, askUnsaved}; }
