#include "platform/qt/qt_host.h"

#include <QApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QFile>
#include <QImage>
#include <QMenuBar>
#include <QPainter>
#include <QProxyStyle>
#include <QScreen>
#include <QStyleOption>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "platform/qt/dialogs.h"
#include "platform/qt/fonts.h"
#include "platform/qt/help_window.h"
#include "platform/qt/widgets.h"

namespace gloamtide {
namespace {

// The program places its controls by the pixel, so they look the same on every desktop.
class ProgramStyle : public QProxyStyle {
public:
    ProgramStyle() : QProxyStyle("Fusion") {}

    int styleHint(StyleHint Hint, const QStyleOption* Option, const QWidget* Widget,
                  QStyleHintReturn* Return) const override {
        if (Hint == SH_ComboBox_Popup) return 0;  // a list that scrolls, not a menu as tall as the screen
        return QProxyStyle::styleHint(Hint, Option, Widget, Return);
    }

    // Every menu bar asks for the arrow of those items that it has no room for. To read the style's own, a file, Qt
    // would load each plugin for pictures at every start, so it is drawn here.
    QIcon standardIcon(StandardPixmap Which, const QStyleOption* Option, const QWidget* Widget) const override {
        return Which == SP_ToolBarHorizontalExtensionButton ? ArrowIcon()
                                                            : QProxyStyle::standardIcon(Which, Option, Widget);
    }

private:
    QIcon ArrowIcon() const {
        QPixmap Picture(16, 16);
        Picture.fill(Qt::transparent);
        QPainter Painter(&Picture);
        QStyleOption Whole;
        Whole.rect = Picture.rect();
        Whole.state = State_Enabled;
        drawPrimitive(PE_IndicatorArrowRight, &Whole, &Painter);
        return Picture;
    }
};

int TitleBarHeight() { return QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight); }

int MenuBarHeight() {
    QMenuBar Bar;
    Bar.addMenu("File");
    return Bar.sizeHint().height();
}

}  // namespace

DateTime ToDateTime(const QDateTime& Reading) {
    const auto Short = [](int Value) { return static_cast<std::int16_t>(Value); };
    const QDate Date = Reading.date();
    const QTime Time = Reading.time();
    return {Short(Date.year()), Short(Date.month()),  Short(Date.dayOfWeek() % 7), Short(Date.day()),
            Short(Time.hour()), Short(Time.minute()), Short(Time.second()),        Short(Time.msec())};
}

QtHost::QtHost() {
    host = this;
    QApplication::setStyle(new ProgramStyle);
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setQuitOnLastWindowClosed(false);  // the program ends itself
}

QtHost::~QtHost() {
    for (const auto& [Record, Window] : Windows) delete Window;
    host = nullptr;
}

int QtHost::Run() {
    TellSettingsTrouble();
    return Ended ? 0 : QApplication::exec();
}

FormWindow* QtHost::WindowOf(const Form& Which) const {
    const auto Found = Windows.find(&Which);
    return Found == Windows.end() ? nullptr : Found->second;
}

QSize QtHost::LargestWindow() { return QGuiApplication::primaryScreen()->availableSize() - QSize(0, TitleBarHeight()); }

void QtHost::ChooseScreen(const std::vector<ProgramScreen>& Screens, const QSize& Window) {
    const QSizeF Space = Window - QSize(0, MenuBarHeight());
    ChosenWidth = Screens.front().Width;
    for (const ProgramScreen& Each : Screens) {
        if (ScaleToFit(Each.Board, Space) >= 1.0) ChosenWidth = Each.Width;
    }
}

void QtHost::KeepSettings(const QString& FileName) {
    Settings = std::make_unique<QSettings>(FileName, QSettings::IniFormat);
    Settings->allKeys();  // looks at all of it
    if (Settings->status() == QSettings::FormatError) {
        const QString Aside = FileName + ".damaged";
        QFile::remove(Aside);
        QFile::copy(FileName, Aside);
        SettingsTrouble = tr("Parts of the settings file are damaged and were left out. It was kept as %1.").arg(Aside);
    } else if (!Settings->isWritable() || Settings->status() != QSettings::NoError) {
        SettingsTrouble = tr("The window's place and what else is kept in %1 will not be kept.").arg(FileName);
    }
}

void QtHost::TellSettingsTrouble() {
    const QString Text = std::exchange(SettingsTrouble, QString());
    if (!Text.isEmpty()) ShowMessage({tr("Settings").toStdString(), Text.toStdString(), MessageIcon::Exclamation});
}

std::string QtHost::ReadSetting(const std::string& Name) {
    return Settings == nullptr ? "" : Settings->value(QString::fromStdString(Name)).toString().toStdString();
}

void QtHost::WriteSetting(const std::string& Name, const std::string& Value) {
    if (Settings != nullptr) Settings->setValue(QString::fromStdString(Name), QString::fromStdString(Value));
}

namespace {

constexpr const char* PlaceSetting = "window/geometry";

// The main window as it was left the last time or, without that, all over the screen; restored, in its middle.
void PlaceAsLeft(FormWindow& Window, const QByteArray& Left) {
    if (!Left.isEmpty() && Window.restoreGeometry(Left)) return;
    const QRect Available = QGuiApplication::primaryScreen()->availableGeometry();
    QRect Restored(QPoint(), Available.size() * 4 / 5);
    Restored.moveCenter(Available.center());
    Window.setGeometry(Restored);
    Window.setWindowState(Qt::WindowMaximized);
}

}  // namespace

void QtHost::Prepare(FormWindow& Window) {
    const QScreen* Desktop = QGuiApplication::primaryScreen();
    const QByteArray Left = Settings == nullptr ? QByteArray() : Settings->value(PlaceSetting).toByteArray();
    PlaceAsLeft(Window, Left);
    if (Window.isFullScreen()) {
        Window.Expect(Desktop->size());
    } else if (Window.isMaximized()) {
        Window.Expect(LargestWindow());
    } else {
        Window.Expect(Window.size());
    }
}

void QtHost::Present(FormWindow& Window) {
    if (Window.windowFlags().testFlag(Qt::FramelessWindowHint)) {
        // The size comes first: where no window manager runs nothing else makes the window large.
        Window.setGeometry(QGuiApplication::primaryScreen()->geometry());
        Window.showFullScreen();
        return;
    }
    if (MainWindow != nullptr && &Window != MainWindow) {
        Window.setGeometry(MainWindow->isFullScreen() || MainWindow->isMaximized() ? MainWindow->normalGeometry()
                                                                                   : MainWindow->geometry());
        Window.setWindowState(MainWindow->windowState() & ~Qt::WindowMinimized);
    }
    Window.show();
}

double QtHost::ScreenWidthTwips() {
    const int Width = ChosenWidth > 0 ? ChosenWidth : QGuiApplication::primaryScreen()->size().width();
    return Width * TwipsPerPixel;
}

double QtHost::ScreenHeightTwips() { return QGuiApplication::primaryScreen()->size().height() * TwipsPerPixel; }
DateTime QtHost::SystemTime() { return ToDateTime(QDateTime::currentDateTimeUtc()); }
DateTime QtHost::LocalTime() { return ToDateTime(QDateTime::currentDateTime()); }
std::string QtHost::Translate(const char* English) {
    return QCoreApplication::translate("gloamtide", English).toStdString();
}
void QtHost::Beep() { QApplication::beep(); }

QWidget* QtHost::DialogParent() const {
    if (QWidget* Active = QApplication::activeWindow(); Active != nullptr && Active->isVisible()) return Active;
    const auto Shown = [](const Form* Each) { return Each->Visible.Get(); };
    const auto Topmost = std::find_if(LoadedForms.rbegin(), LoadedForms.rend(), Shown);
    return Topmost == LoadedForms.rend() ? nullptr : WindowOf(**Topmost);
}

MessageAnswer QtHost::ShowMessage(const MessageBox& Message) {
    const TickGate::Hold Held(Gate);
    return AskMessage(Message, DialogParent());
}

std::optional<std::string> QtHost::ShowOpenDialog(const FileDialog& Dialog) {
    const TickGate::Hold Held(Gate);
    return AskOpenFile(Dialog, DialogParent());
}

std::optional<std::string> QtHost::ShowSaveDialog(const FileDialog& Dialog) {
    const TickGate::Hold Held(Gate);
    return AskSaveFile(Dialog, DialogParent());
}

void QtHost::ShowHelp(const std::string& FileName) {
    const auto Found = HelpTexts.find(FileName);
    if (Found == HelpTexts.end()) return;
    if (Help == nullptr) Help = std::make_unique<HelpWindow>(Found->second);
    Help->show();
    Help->raise();
    Help->activateWindow();
}

GlyphMask QtHost::RenderText(const Font& TheFont, const std::string& Text, double Density) {
    Font Larger = TheFont;
    Larger.Size *= Density;
    return RenderMask(Larger, Text);
}

Bitmap QtHost::DecodePicture(std::span<const unsigned char> Bytes) {
    const QImage Image = QImage::fromData(Bytes.data(), static_cast<int>(Bytes.size()));
    Bitmap Result(Image.width(), Image.height(), 0);
    for (int Y = 0; Y < Result.Height; ++Y) {
        const QImage Line = Image.copy(0, Y, Result.Width, 1).convertToFormat(QImage::Format_RGBX8888);
        const auto* Row = reinterpret_cast<const Color*>(Line.constBits());
        std::transform(Row, Row + Result.Width, Result.Row(Y), [](Color Opaque) { return Opaque & 0xFFFFFFU; });
    }
    return Result;
}

// Makes the window of a form when that is shown for the first time.
class QtHost::FirstShow : public ElementObserver {
public:
    FirstShow(QtHost& TheHost, Form& TheForm) : Host(TheHost), Record(TheForm) { Record.Observer = this; }
    void ElementChanged(Element&) override {
        if (Record.Visible) Host.MakeWindow(Record);
    }

private:
    QtHost& Host;
    Form& Record;
};

// A dialog may never be opened, so its window waits; the program lays out the main window by what that measures.
void QtHost::FormLoaded(Form& Which) {
    if (Which.Menus.empty()) {
        Awaited[&Which] = std::make_unique<FirstShow>(*this, Which);
        return;
    }
    MakeWindow(Which);
    MainWindow = WindowOf(Which);
    Prepare(*MainWindow);
}

void QtHost::MakeWindow(Form& Which) {
    Windows[&Which] = new FormWindow(
        Which, [this](FormWindow& Shown) { Present(Shown); }, Gate);
}

// The window goes later: an event of its own may be under way.
void QtHost::FormUnloaded(Form& Which) {
    FormWindow* Window = WindowOf(Which);
    Windows.erase(&Which);
    Which.Observer = nullptr;
    Awaited.erase(&Which);
    if (Window == nullptr) return;
    if (Window == MainWindow) {
        if (Settings != nullptr) Settings->setValue(PlaceSetting, Window->saveGeometry());
        MainWindow = nullptr;
    }
    Window->LetGo();
    Window->deleteLater();
}

void QtHost::BringToFront(Form& Which) {
    QWidget* Window = WindowOf(Which);
    if (Window == nullptr) return;
    Window->setWindowState(Window->windowState() & ~Qt::WindowMinimized);
    Window->raise();
    Window->activateWindow();
}

void QtHost::SetFocus(Control& Which) {
    const Control* Root = &Which;
    while (Root->Parent != nullptr) Root = Root->Parent;
    const auto Found = Windows.find(static_cast<const Form*>(Root));
    if (Found == Windows.end()) return;
    auto* Widget = Found->second->findChild<QWidget*>(QString::fromStdString(Which.Name));
    if (Widget == nullptr) return;
    Widget->setFocus();
    SelectText(*Widget);
}

// No tick and no key press comes in between, for an event of the program is under way.
void QtHost::ProcessPendingEvents() {
    const TickGate::Hold Held(Gate);
    const auto Comes = [](const QWindow* Window) { return Window->isVisible() && !Window->isExposed(); };
    const auto OneComes = [&] { return std::ranges::any_of(QGuiApplication::topLevelWindows(), Comes); };
    const QDeadlineTimer Deadline(500);  // milliseconds for the desktop to bring a new window up
    do {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    } while (OneComes() && !Deadline.hasExpired());
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtHost::EndProcess() {
    Ended = true;
    Help.reset();
    QCoreApplication::exit(0);
}

}  // namespace gloamtide
