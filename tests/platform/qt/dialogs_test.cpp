#include "platform/qt/dialogs.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

#include "demo_form.h"

namespace gloamtide {
namespace {

class Dialogs : public DesktopTest {
protected:
    std::string Path(const QString& Name) const { return Folder.filePath(Name).toStdString(); }

    void MakeFile(const QString& Name) const {
        QFile File(Folder.filePath(Name));
        ASSERT_TRUE(File.open(QIODevice::WriteOnly));
    }

    FileDialog Asking(const QString& Name) const {
        return {"Gloamtide Files (*.gtf)|*.gtf|All Files (*.*)|*.*", Path(Name)};
    }

    const QTemporaryDir Folder;
};

TEST_F(Dialogs, AMessageHasTitleTextIconAndAnswer) {
    WhenOpen<QMessageBox>([&](QMessageBox& Box) {
        EXPECT_EQ(Box.windowTitle(), "Save Configuration?");
        EXPECT_EQ(Box.text(), "Do <i>you</i>?");
        EXPECT_EQ(Box.textFormat(), Qt::PlainText);
        EXPECT_EQ(Box.icon(), QMessageBox::Question);
        EXPECT_EQ(Box.windowModality(), Qt::ApplicationModal);
        EXPECT_EQ(Box.parentWidget(), &Window());
        Box.button(QMessageBox::Yes)->click();
    });
    const MessageBox Question = {"Save Configuration?", "Do <i>you</i>?", MessageIcon::Question, MessageButtons::YesNo};
    EXPECT_EQ(Desktop.ShowMessage(Question), MessageAnswer::Yes);
    WhenOpen<QMessageBox>([](QMessageBox& Box) { QTest::keyClick(&Box, Qt::Key_Escape); });
    EXPECT_EQ(Desktop.ShowMessage(Question), MessageAnswer::No);
    WhenOpen<QMessageBox>([](QMessageBox& Box) {
        EXPECT_EQ(Box.icon(), QMessageBox::Warning);
        QTest::keyClick(&Box, Qt::Key_Return);
    });
    EXPECT_EQ(Desktop.ShowMessage({"A title", "Text", MessageIcon::Exclamation}), MessageAnswer::OK);
}

TEST_F(Dialogs, OpenOffersFiltersAndGivesTheChosenFile) {
    MakeFile("home.gtf");
    WhenOpen<QFileDialog>([](QFileDialog& Box) {
        EXPECT_EQ(Box.nameFilters(), (QStringList{"Gloamtide Files (*.gtf)", "All Files (*)"}));
        EXPECT_EQ(Box.selectedNameFilter(), "Gloamtide Files (*.gtf)");
        EXPECT_EQ(Box.fileMode(), QFileDialog::ExistingFile);
        static_cast<QDialog&>(Box).accept();
    });
    EXPECT_EQ(Desktop.ShowOpenDialog(Asking("home.gtf")), Path("home.gtf"));
    WhenOpen<QFileDialog>([](QFileDialog& Box) { Box.reject(); });
    EXPECT_EQ(Desktop.ShowOpenDialog(Asking("home.gtf")), std::nullopt);
}

TEST_F(Dialogs, SaveOffersTheNameAndAsksBeforeItOverwrites) {
    WhenOpen<QFileDialog>([](QFileDialog& Box) {
        EXPECT_EQ(Box.acceptMode(), QFileDialog::AcceptSave);
        static_cast<QDialog&>(Box).accept();
    });
    EXPECT_EQ(Desktop.ShowSaveDialog(Asking("new.gtf")), Path("new.gtf"));

    MakeFile("old.gtf");
    bool Asked = false;
    WhenOpen<QFileDialog>([&](QFileDialog& Box) {
        WhenOpen<QMessageBox>([&](QMessageBox& Question) {
            Asked = true;
            Question.button(QMessageBox::No)->click();
        });
        static_cast<QDialog&>(Box).accept();
        EXPECT_TRUE(Box.isVisible()) << "the user said No";
        Box.reject();
    });
    EXPECT_EQ(Desktop.ShowSaveDialog(Asking("old.gtf")), std::nullopt);
    EXPECT_TRUE(Asked);
}

TEST_F(Dialogs, SaveGivesANameWithoutAnEndingThatOfTheFilter) {
    WhenOpen<QFileDialog>([](QFileDialog& Box) { static_cast<QDialog&>(Box).accept(); });
    EXPECT_EQ(Desktop.ShowSaveDialog(Asking("home")), Path("home.gtf"));
    WhenOpen<QFileDialog>([](QFileDialog& Box) {
        Box.selectNameFilter("All Files (*)");
        emit Box.filterSelected("All Files (*)");  // as when the user picks it
        static_cast<QDialog&>(Box).accept();
    });
    EXPECT_EQ(Desktop.ShowSaveDialog(Asking("home")), Path("home"));
}

TEST_F(Dialogs, AFilterOfAllFilesMeansThoseWithoutADotToo) {
    EXPECT_EQ(QtFilter("Text (*.txt)|*.txt;*.text|All|*.*"), "Text (*.txt *.text);;All (*)");
    EXPECT_EQ(QtFilter(""), "");
}

}  // namespace
}  // namespace gloamtide
