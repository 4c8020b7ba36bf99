#include "platform/qt/dialogs.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>
#include <algorithm>

#include "platform/qt/picture_view.h"

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

class ProgramMessage : public QMessageBox {
public:
    ProgramMessage(const MessageBox& Message, QWidget* Parent)
        : QMessageBox(QtIcon(Message.Icon), QString::fromStdString(Message.Title), QString::fromStdString(Message.Text),
                      Message.Buttons == MessageButtons::OK ? Ok : Yes | No, Parent) {
        setObjectName("MessageBox");
        setTextFormat(Qt::PlainText);
        setWindowModality(Qt::ApplicationModal);
    }

protected:
    // A question is answered by a button: neither the Escape key nor the window's close button counts as one.
    void closeEvent(QCloseEvent* Event) override {
        if (IsQuestion()) {
            Event->ignore();
        } else {
            QMessageBox::closeEvent(Event);
        }
    }
    void keyPressEvent(QKeyEvent* Event) override {
        if (!IsQuestion() || Event->key() != Qt::Key_Escape) QMessageBox::keyPressEvent(Event);
    }

    // Over the splash it stands below the picture, whose title stays to be read.
    void showEvent(QShowEvent* Event) override {
        QMessageBox::showEvent(Event);
        const QWidget* Splash = parentWidget();
        if (Splash == nullptr || !Splash->windowFlags().testFlag(Qt::FramelessWindowHint)) return;
        const auto* Picture = Splash->findChild<PictureView*>();
        if (Picture == nullptr) return;
        constexpr int TitleBar = 40;  // pixels, what the desktop may add, and a gap
        const QPoint Below = Picture->mapToGlobal(QPoint(Picture->width() / 2, Picture->height()));
        const QRect Screen = Splash->screen()->availableGeometry();
        const int Lowest = Screen.bottom() - height() - TitleBar;
        move(std::clamp(Below.x() - width() / 2, Screen.left(), std::max(Screen.left(), Screen.right() - width())),
             std::max(Screen.top(), std::min(Below.y() + 8, Lowest)));
    }

private:
    bool IsQuestion() const { return standardButtons() != Ok; }
};

std::optional<std::string> Chosen(QFileDialog& Box, const FileDialog& Dialog) {
    Box.setNameFilter(QtFilter(Dialog.Filter));
    if (!Dialog.FileName.empty()) Box.selectFile(QString::fromStdString(Dialog.FileName));
    if (Box.exec() != QDialog::Accepted) return std::nullopt;
    return Box.selectedFiles().constFirst().toStdString();
}

}  // namespace

MessageAnswer AskMessage(const MessageBox& Message, QWidget* Parent) {
    ProgramMessage Box(Message, Parent);
    const int Answer = Box.exec();
    if (Message.Buttons == MessageButtons::OK) return MessageAnswer::OK;
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
