#include "platform/qt/dialogs.h"

#include "demo_form.h"

namespace gloamtide {
namespace {

using Dialogs = DesktopTest;

TEST_F(Dialogs, AMessageHasTitleTextIconAndAnswer) {
    const MessageBox Question = {"Save Configuration?", "Do <i>you</i>?", MessageIcon::Question, MessageButtons::YesNo};
    const std::tuple<MessageBox, QMessageBox::Icon, QMessageBox::StandardButton, MessageAnswer> Cases[] = {
        {Question, QMessageBox::Question, QMessageBox::Yes, MessageAnswer::Yes},
        {Question, QMessageBox::Question, QMessageBox::No, MessageAnswer::No},
        {{"A title", "Text", MessageIcon::Exclamation}, QMessageBox::Warning, QMessageBox::Ok, MessageAnswer::OK},
        {{"Another", "Text"}, QMessageBox::NoIcon, QMessageBox::NoButton, MessageAnswer::OK}};
    for (const auto& [Message, Icon, Pressed, Answer] : Cases) {
        WhenOpen<QMessageBox>([&, &Wanted = Message, Shown = Icon, Press = Pressed](QMessageBox& Box) {
            const std::tuple Look(Box.windowTitle().toStdString(), Box.text().toStdString(), Box.textFormat());
            EXPECT_EQ(Look, std::tuple(Wanted.Title, Wanted.Text, Qt::PlainText));
            EXPECT_EQ(std::tuple(Box.icon(), Box.parentWidget()), std::tuple(Shown, &Window()));
            const bool Waits = Press != QMessageBox::NoButton;
            if (!Waits || Wanted.Buttons == MessageButtons::YesNo) QTest::keyClick(&Box, Qt::Key_Escape);
            if (Wanted.Buttons == MessageButtons::YesNo) Box.close();
            EXPECT_EQ(Box.isVisible(), Waits) << "a question waits for one of its buttons";
            if (Waits) Box.button(Press)->click();
        });
        EXPECT_EQ(Desktop.ShowMessage(Message), Answer) << Message.Title;
    }
}

TEST_F(Dialogs, AMessageOverTheSplashStandsRightBelowItsPicture) {
    Form Splash("Splash", 9000.0, 9000.0, true);
    PictureBox Image(Splash, "Image");
    Image.Move(300.0, 300.0);
    Image.Size(6000.0, 3000.0);
    Splash.Show();
    const QWidget& Picture = *Desktop.WindowOf(Splash)->findChild<QWidget*>("Image");
    ASSERT_TRUE(QTest::qWaitForWindowActive(Desktop.WindowOf(Splash)));
    WhenOpen<QMessageBox>([&](QMessageBox& Box) {
        EXPECT_NEAR(Box.y(), Picture.mapToGlobal(QPoint(0, Picture.height())).y() + 8, 8);
        Box.button(QMessageBox::Ok)->click();
    });
    Desktop.ShowMessage({"File Not Found", "Text"});
    Splash.Unload();
}

TEST_F(Dialogs, FilesAreChosenAsTheirDialogPromises) {
    const struct {
        bool ToSave;
        const char* Offered;
        bool TakesAll;                       // files
        QMessageBox::StandardButton Answer;  // to a message that may come
        const char* Chosen;                  // or nothing
    } Cases[] = {{false, "home.gtf", false, QMessageBox::NoButton, "home.gtf"},
                 {false, "nowhere.gtf", false, QMessageBox::Ok, nullptr},
                 {true, "home.gtf", false, QMessageBox::No, nullptr},  // asks before it overwrites
                 {true, "home.gtf", false, QMessageBox::Yes, "home.gtf"},
                 {true, "new", false, QMessageBox::NoButton, "new.gtf"},  // the ending of the filter
                 {true, "new.txt", false, QMessageBox::NoButton, "new.txt"},
                 {true, "new", true, QMessageBox::NoButton, "new"}};
    const QTemporaryDir Folder;
    const auto PathOf = [&](const char* Name) { return Folder.filePath(Name).toStdString(); };
    EXPECT_TRUE(QFile(Folder.filePath("home.gtf")).open(QIODevice::WriteOnly));
    for (const auto& Case : Cases) {
        const FileDialog Asked = {"Gloamtide Files (*.gtf)|*.gtf|All Files (*.*)|*.*", PathOf(Case.Offered)};
        WhenOpen<QFileDialog>([&](QFileDialog& Box) {
            EXPECT_EQ(Box.windowTitle(), Case.ToSave ? "Save As" : "Open");
            EXPECT_EQ(Box.nameFilters(), (QStringList{"Gloamtide Files (*.gtf)", "All Files (*)"}));
            EXPECT_EQ(Box.selectedNameFilter(), "Gloamtide Files (*.gtf)");
            if (Case.TakesAll) Box.selectNameFilter("All Files (*)");
            if (Case.TakesAll) emit Box.filterSelected("All Files (*)");  // as when the user picks it
            const bool Asks = Case.Answer != QMessageBox::NoButton;
            if (Asks) WhenOpen<QMessageBox>([&](QMessageBox& Told) { Told.button(Case.Answer)->click(); });
            static_cast<QDialog&>(Box).accept();
            EXPECT_EQ(Box.isVisible(), Case.Chosen == nullptr);
            if (Box.isVisible()) Box.reject();
        });
        const auto Chosen = Case.ToSave ? Desktop.ShowSaveDialog(Asked) : Desktop.ShowOpenDialog(Asked);
        EXPECT_EQ(Chosen.value_or("none"), Case.Chosen == nullptr ? "none" : PathOf(Case.Chosen));
    }
}

TEST_F(Dialogs, AFilterOfAllFilesMeansThoseWithoutADotToo) {
    EXPECT_EQ(QtFilter("Text (*.txt)|*.txt;*.text|All|*.*"), "Text (*.txt *.text);;All (*)");
    EXPECT_EQ(QtFilter(""), "");
}

}  // namespace
}  // namespace gloamtide
