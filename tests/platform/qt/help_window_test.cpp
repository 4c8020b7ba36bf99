#include "platform/qt/help_window.h"

#include "assets/assets.h"
#include "demo_form.h"
#include "tests/fresh_program.h"

namespace gloamtide {
namespace {

QString HelpText() { return QString::fromUtf8(QByteArrayView(HelpHtml())); }

class Help : public testing::Test {
protected:
    Help() { Window.show(); }

    template <class Widget>
    Widget& Find(const char* Name) {
        return *Window.findChild<Widget*>(Name);
    }

    // Types into the field in place of what stands there.
    void Type(const char* Field, const QString& Words) {
        Find<QLineEdit>(Field).selectAll();
        QTest::keyClicks(&Find<QLineEdit>(Field), Words);
    }

    // Picks each entry of a list; each has to lead to a place that then stands on top, unless the text ends before.
    // Gives the entries, and through Check what follows that place in its paragraph.
    QStringList Walk(const char* Name, const std::function<void(const QString& Entry, const QString& There)>& Check) {
        QStringList Entries;
        auto& List = Find<QListWidget>(Name);
        for (int Row = 0; Row < List.count(); ++Row) {
            List.setCurrentRow(Row);
            Entries.append(List.item(Row)->text());
            const QTextCursor Place = Text.textCursor();
            QRect Sight = Text.viewport()->rect();
            const QScrollBar& Bar = *Text.verticalScrollBar();
            if (Bar.value() < Bar.maximum()) Sight.setHeight(Sight.height() / 4);
            EXPECT_TRUE(Sight.intersects(Text.cursorRect())) << Entries.back().toStdString();
            Check(Entries.back(), Place.block().text().mid(Place.positionInBlock()));
        }
        return Entries;
    }

    HelpWindow Window{HelpText()};
    QTextBrowser& Text = Find<QTextBrowser>("HelpText");
};

TEST_F(Help, TheIndexLeadsToTheStartupFile) {
    const QStringList Index = Walk("HelpIndex", [](const auto&, const QString& There) { EXPECT_NE(There, ""); });
    EXPECT_TRUE(std::ranges::is_sorted(Index, std::less_equal())) << "each once";
    for (const QString Begin : {"S", "Startup F"}) {
        Type("HelpIndexField", Begin.toLower());
        const QString First = Index.filter(QRegularExpression("^" + Begin)).value(0);
        EXPECT_EQ(Find<QListWidget>("HelpIndex").currentItem()->text(), First);
    }
    EXPECT_TRUE(Text.textCursor().block().text().contains("path of the configuration file to open at the next start"));
}

TEST_F(Help, ContentsLeadToTheirHeadings) {
    const auto IsThere = [](const QString& Entry, const QString& There) { EXPECT_EQ(There, Entry); };
    EXPECT_EQ(Walk("HelpContents", IsThere).size(), HelpText().count(QRegularExpression("<h[1-6]")));
}

TEST_F(Help, SearchFindsWordsAnywhere) {
    const auto IsThere = [](const QString& Excerpt, const QString& There) {
        EXPECT_TRUE(There.startsWith("Julian", Qt::CaseInsensitive)) << There.toStdString();
        EXPECT_TRUE(Excerpt.contains("Julian", Qt::CaseInsensitive) && Excerpt.size() <= 80) << Excerpt.toStdString();
    };
    Type("HelpSearchField", "JULIAN");
    const QStringList Found = Walk("HelpFound", IsThere);
    EXPECT_GT(Found.size(), 1);
    Type("HelpSearchField", "  julian ");
    EXPECT_EQ(Walk("HelpFound", IsThere), Found);
    Type("HelpSearchField", "nowhere at all");
    EXPECT_EQ(Find<QListWidget>("HelpFound").count(), 0);
    QTest::keyClick(&Find<QLineEdit>("HelpSearchField"), Qt::Key_Escape);
    EXPECT_FALSE(Window.isVisible());
}

TEST_F(Help, ItSpeaksOfEveryCommandAndPanelRow) {
    RenewProgram();
    std::vector<std::string> Names = {"Startup.dat", ".gtf"};
    for (const Menu* Each : FormGTMain.Menus) {
        Names.push_back(Each->Caption);
        for (const Menu* Item : Each->Items) Names.push_back(Item->Caption);
    }
    for (const Control* Row : FormGTMain.PictureGTData[3].Children) {
        Names.push_back(dynamic_cast<const Label&>(*Row).Caption);
    }
    for (const std::string& Each : Names) {
        const QString Name = QString::fromStdString(Each).remove('&').remove(':').trimmed();
        EXPECT_TRUE(Text.toPlainText().contains(Name)) << Each;
    }
}

TEST(HelpRequest, OpensTheFileThatIsThereAndGoesWithTheProgram) {
    QtHost Desktop;
    const auto ExpectShown = [](qsizetype Count) {
        QStringList Titles;
        for (const QWidget* Each : QApplication::topLevelWidgets()) {
            if (Each->isVisible()) Titles.append(Each->windowTitle());
        }
        EXPECT_EQ(Titles, QStringList(Count, "Gloamtide Help"));
    };
    Desktop.ShowHelp("GT401.hlp");
    Desktop.HelpTexts["GT401.hlp"] = HelpText();
    Desktop.ShowHelp("other.hlp");
    ExpectShown(0);
    Desktop.ShowHelp("GT401.hlp");
    ExpectShown(1);
    QTimer::singleShot(0, [&] { Desktop.EndProcess(); });
    Desktop.Run();
    ExpectShown(0);
}

}  // namespace
}  // namespace gloamtide
