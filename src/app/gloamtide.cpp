// Gloamtide, the desktop program.

#include <QApplication>
#include <QIcon>
#include <QPixmap>

#include "assets/assets.h"
#include "frame/startup.h"
#include "platform/qt/qt_host.h"

int main(int Count, char** Arguments) {
    QApplication Application(Count, Arguments);
    QApplication::setApplicationName("Gloamtide");
    const gloamtide::AssetBytes Icon = gloamtide::IconPng();
    QPixmap Picture;
    Picture.loadFromData(Icon.data(), static_cast<uint>(Icon.size()), "PNG");
    QApplication::setWindowIcon(Picture);

    gloamtide::QtHost Desktop;
    const gloamtide::AssetBytes Help = gloamtide::HelpHtml();
    Desktop.HelpTexts["GT401.hlp"] =
        QString::fromUtf8(reinterpret_cast<const char*>(Help.data()), static_cast<qsizetype>(Help.size()));
    gloamtide::StartProgram();
    return Desktop.Run();
}
