#include "platform/qt/dialogs.h"

#include <QFileDialog>
#include <QMessageBox>

namespace gloamtide {
namespace {

QMessageBox::Icon QtIcon(MessageIcon Icon) {
    switch (Icon) {
        case MessageIcon::Exclamation:
            return QMessageBox::Warning;
        case MessageIcon::Question:
            return QMessageBox::Question;
        case MessageIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

std::optional<std::string> Chosen(QFileDialog& Box, const FileDialog& Dialog) {
    Box.setNameFilter(QtFilter(Dialog.Filter));
    if (!Dialog.FileName.empty()) Box.selectFile(QString::fromStdString(Dialog.FileName));
    if (Box.exec() != QDialog::Accepted) return std::nullopt;
    return Box.selectedFiles().constFirst().toStdString();
}

}  // namespace

MessageAnswer AskMessage(const MessageBox& Message, QWidget* Parent) {
    const bool Choice = Message.Buttons == MessageButtons::YesNo;
    QMessageBox Box(QtIcon(Message.Icon), QString::fromStdString(Message.Title), QString::fromStdString(Message.Text),
                    Choice ? QMessageBox::Yes | QMessageBox::No : QMessageBox::StandardButtons(QMessageBox::Ok),
                    Parent);
    Box.setObjectName("MessageBox");
    Box.setTextFormat(Qt::PlainText);
    Box.setWindowModality(Qt::ApplicationModal);
    const int Answer = Box.exec();
    if (!Choice) return MessageAnswer::OK;
    return Answer == QMessageBox::Yes ? MessageAnswer::Yes : MessageAnswer::No;
}

std::optional<std::string> AskOpenFile(const FileDialog& Dialog, QWidget* Parent) {
    QFileDialog Box(Parent, "Open");
    Box.setAcceptMode(QFileDialog::AcceptOpen);
    Box.setFileMode(QFileDialog::ExistingFile);
    return Chosen(Box, Dialog);
}

std::optional<std::string> AskSaveFile(const FileDialog& Dialog, QWidget* Parent) {
    QFileDialog Box(Parent, "Save As");
    Box.setAcceptMode(QFileDialog::AcceptSave);
    Box.setFileMode(QFileDialog::AnyFile);
    // A name typed without an ending gets that of the chosen filter, so that the Open dialog shows the file again.
    const auto TakeEnding = [&Box](const QString& Filter) {
        Box.setDefaultSuffix(Filter.section("(*.", 1).section(')', 0, 0));
    };
    TakeEnding(QtFilter(Dialog.Filter).section(";;", 0, 0));
    QObject::connect(&Box, &QFileDialog::filterSelected, &Box, TakeEnding);
    return Chosen(Box, Dialog);
}

QString QtFilter(const std::string& Filter) {
    const QStringList Parts = QString::fromStdString(Filter).split('|');
    QStringList Filters;
    for (qsizetype Place = 0; Place + 1 < Parts.size(); Place += 2) {
        const QString Description = Parts[Place].section(" (", 0, 0);
        const QString Patterns = Parts[Place + 1] == "*.*" ? "*" : Parts[Place + 1];
        Filters.append(Description + " (" + QString(Patterns).replace(';', ' ') + ")");
    }
    return Filters.join(";;");
}

}  // namespace gloamtide
