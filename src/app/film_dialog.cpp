#include "app/film_dialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "app/instant.h"
#include "app/shown.h"
#include "clock/clock.h"
#include "platform/host.h"
#include "platform/qt/qt_host.h"
#include "state/extras.h"
#include "storage/configuration.h"
#include "storage/files.h"

namespace gloamtide {
namespace {

constexpr int FirstYear = 1;  // of a command line
constexpr int LastYear = 4000;
constexpr const char* TimeFormat = "yyyy-MM-dd HH:mm:ss";

// The instant that the program shows, or the present where that is in no year that a film can have.
QDateTime ShownTime() {
    QDateTime Now = QDateTime::currentDateTimeUtc();
    if (!(state.CurrentJD > LowestJD && state.CurrentJD < HighestJD)) return Now;
    const DateTime Shown = ReadingOf(std::llround((state.CurrentJD + 0.5) * 86400.0));
    if (Shown.Year < FirstYear || Shown.Year >= LastYear) return Now;
    return {QDate(Shown.Year, Shown.Month, Shown.Day), QTime(Shown.Hour, Shown.Minute, Shown.Second), Qt::UTC};
}

QDateTimeEdit* TimeField(const QDateTime& Time) {
    auto* Field = new QDateTimeEdit;
    Field->setTimeSpec(Qt::UTC);
    Field->setDateRange(QDate(FirstYear, 1, 1), QDate(LastYear, 12, 31));
    Field->setDisplayFormat(TimeFormat);
    Field->setDateTime(Time);
    return Field;
}

QSpinBox* NumberField(int Least, int Most, int Value) {
    auto* Field = new QSpinBox;
    Field->setRange(Least, Most);
    Field->setValue(Value);
    return Field;
}

QHBoxLayout* Beside(std::initializer_list<QWidget*> Widgets) {
    auto* Row = new QHBoxLayout;
    for (QWidget* Each : Widgets) Row->addWidget(Each);
    Row->addStretch();
    return Row;
}

QLabel* LabelOf(const QString& Text, QWidget* Field) {
    auto* Label = new QLabel(Text);
    Label->setBuddy(Field);
    return Label;
}

// The names of what lies over the map, or of what does not.
QString Names(bool Shown) {
    QStringList Result;
    for (const ShownThing& Each : ShownThings()) {
        if ((Each.Flag == True) == Shown) Result.append(Each.Name);
    }
    return Result.join(',');
}

}  // namespace

FilmDialog::FilmDialog(QWidget* Parent) : QDialog(Parent) {
    setObjectName("FilmDialog");
    setWindowTitle(tr("Gloamtide - Save Film"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* Fields = new QFormLayout;
    AddTimes(*Fields);
    AddPicture(*Fields);
    auto* Rows = new QVBoxLayout(this);
    Rows->addLayout(Fields);
    AddProgress(*Rows);
    AddButtons(*Rows);
    connect(&Maker, &QProcess::readyReadStandardError, this, &FilmDialog::Follow);
    connect(&Maker, &QProcess::finished, this, &FilmDialog::Finish);
    SetBusy(false);
    TellCount();
}

FilmDialog::~FilmDialog() {
    constexpr int Patience = 5000;  // milliseconds
    Maker.disconnect(this);
    Maker.terminate();
    Maker.waitForFinished(Patience);
}

void FilmDialog::AddTimes(QFormLayout& Rows) {
    const QDateTime Start = ShownTime();
    From = TimeField(Start);
    To = TimeField(std::min(Start.addYears(1), QDateTime(QDate(LastYear, 12, 31), QTime(0, 0), Qt::UTC)));
    StepNumber = NumberField(1, 8000, 1);
    StepNumber->setAccessibleName(tr("Step"));
    StepUnit = new QComboBox;
    StepUnit->setAccessibleName(tr("Unit of the step"));
    StepUnit->addItem(tr("seconds"), "s");
    StepUnit->addItem(tr("minutes"), "min");
    StepUnit->addItem(tr("hours"), "h");
    StepUnit->addItem(tr("days"), "d");
    StepUnit->addItem(tr("years"), "y");
    StepUnit->setCurrentIndex(3);
    Rows.addRow(tr("&From (Greenwich):"), From);
    Rows.addRow(tr("&To (Greenwich):"), To);
    Rows.addRow(LabelOf(tr("Ste&p:"), StepNumber), Beside({StepNumber, StepUnit}));
    for (QDateTimeEdit* Each : {From, To}) {
        connect(Each, &QDateTimeEdit::dateTimeChanged, this, &FilmDialog::TellCount);
    }
    connect(StepNumber, &QSpinBox::valueChanged, this, &FilmDialog::TellCount);
    connect(StepUnit, &QComboBox::currentIndexChanged, this, &FilmDialog::TellCount);
}

void FilmDialog::AddPicture(QFormLayout& Rows) {
    Width = NumberField(64, 16384, 1280);
    Height = NumberField(64, 16384, 720);
    Width->setAccessibleName(tr("Width in pixels"));
    Height->setAccessibleName(tr("Height in pixels"));
    OnlyMap = new QCheckBox(tr("Only the &map"));
    OnlyMap->setChecked(true);
    Rate = NumberField(1, 60, 12);
    Format = new QComboBox;
    Format->addItem(tr("WebP, an animated picture"), "webp");
    Format->addItem(tr("GIF, an animated picture of few colors"), "gif");
    Format->addItem(tr("MP4, a film (takes ffmpeg)"), "mp4");
    Format->addItem(tr("WebM, a film (takes ffmpeg)"), "webm");
    Rows.addRow(LabelOf(tr("Si&ze:"), Width), Beside({Width, new QLabel(tr("by")), Height, new QLabel(tr("pixels"))}));
    Rows.addRow("", OnlyMap);
    Rows.addRow(tr("Pictures a secon&d:"), Rate);
    Rows.addRow(tr("F&ormat:"), Format);
    connect(Rate, &QSpinBox::valueChanged, this, &FilmDialog::TellCount);
}

void FilmDialog::AddProgress(QVBoxLayout& Rows) {
    Bar = new QProgressBar;
    Bar->setAccessibleName(tr("Progress"));
    Told = new QLabel;
    Told->setWordWrap(true);
    Told->setMinimumWidth(360);
    Rows.addWidget(Bar);
    Rows.addWidget(Told);
}

void FilmDialog::AddButtons(QVBoxLayout& Rows) {
    auto* Buttons = new QDialogButtonBox;
    SaveButton = Buttons->addButton(tr("&Save..."), QDialogButtonBox::AcceptRole);
    CancelButton = Buttons->addButton(QDialogButtonBox::Cancel);
    connect(SaveButton, &QPushButton::clicked, this, &FilmDialog::Save);
    connect(CancelButton, &QPushButton::clicked, this, &FilmDialog::reject);
    Rows.addWidget(Buttons);
}

std::int64_t FilmDialog::Count() const {
    const Instant First = InstantOf(ToDateTime(From->dateTime()));
    const Instant Last = InstantOf(ToDateTime(To->dateTime()));
    const int Number = StepNumber->value();
    constexpr int UnitSeconds[] = {1, 60, 3600, 86400, 0};
    const int Seconds = UnitSeconds[StepUnit->currentIndex()];
    if (Last < First) return 0;
    return CountInstants(First, Last, Seconds == 0 ? Step{0, Number} : Step{std::int64_t{Seconds} * Number, 0});
}

void FilmDialog::TellCount() {
    const std::int64_t Pictures = Count();
    SaveButton->setEnabled(Pictures > 0);
    if (Pictures == 0) {
        Told->setText(tr("The film would end before it begins."));
        return;
    }
    const std::int64_t Seconds = Pictures / Rate->value();
    Told->setText(
        tr("%1 pictures, %2:%3 minutes").arg(Pictures).arg(Seconds / 60).arg(Seconds % 60, 2, 10, QChar('0')));
}

QStringList FilmDialog::Arguments(const QString& Configuration) const {
    const char* const Map = state.MapType == 1 ? "political" : extras.TerrainShown == True ? "terrain" : "natural";
    const auto TimeText = [](const QDateTimeEdit* Field) {
        return Field->dateTime().toString("yyyy-MM-dd'T'HH:mm:ss'Z'");
    };
    QStringList Result = {"--config", Configuration, "--map", Map, "--progress", "--yes"};
    Result << "--at" << TimeText(From) << "--until" << TimeText(To);
    Result << "--step" << StepNumber->text() + StepUnit->currentData().toString() << "--rate" << Rate->text();
    Result << "--size" << Width->text() + "x" + Height->text();
    if (OnlyMap->isChecked()) Result << "--only-map";
    for (const bool Shown : {true, false}) {
        if (!Names(Shown).isEmpty()) Result << (Shown ? "--show" : "--hide") << Names(Shown);
    }
    return Result << Path;
}

void FilmDialog::Save() {
    constexpr std::int64_t Many = 100000;
    if (Count() > Many) {
        const std::string Question = tr("The film has %1 pictures. Go on?").arg(Count()).toStdString();
        const MessageBox Sure = {"Save Film", Question, MessageIcon::Question, MessageButtons::YesNo};
        if (host->ShowMessage(Sure) != MessageAnswer::Yes) return;
    }
    const QString Ending = Format->currentData().toString();
    const auto Chosen = host->ShowSaveDialog(
        {QString("%1 (*.%2)|*.%2").arg(Format->currentText().section(',', 0, 0), Ending).toStdString(),
         ("gloamtide." + Ending).toStdString()});
    if (!Chosen) return;
    Path = QString::fromStdString(*Chosen);
    const QString Configuration = Folder.filePath("film.gtf");
    try {
        WriteFile(Configuration.toStdString(), ConfigurationBytes());
    } catch (const FileFailure& Failure) {
        Told->setText(Failure.what());
        return;
    }
    Cancelled = false;
    Error.clear();
    Bar->setRange(0, static_cast<int>(std::min<std::int64_t>(Count(), std::numeric_limits<int>::max())));
    Bar->setValue(0);
    SetBusy(true);
    Told->setText(tr("Beginning..."));
    Maker.start(QApplication::applicationDirPath() + "/gloamtide-still", Arguments(Configuration));
    if (!Maker.waitForStarted()) Finish(1, QProcess::CrashExit);
}

// "12 of 365 pictures, 0:41 left", again and again, and at the end perhaps what was wrong.
void FilmDialog::Follow() {
    static const QRegularExpression Progress("^([0-9]+) of [0-9]+ pictures, .*");
    const QString Text = QString::fromUtf8(Maker.readAllStandardError()).replace('\r', '\n');
    for (const QString& Line : Text.split('\n', Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch Found = Progress.match(Line);
        if (Found.hasMatch()) {
            Bar->setValue(Found.captured(1).toInt());
            if (!Cancelled) Told->setText(Line.trimmed());
        } else {
            Error = Line.section(": ", 1);
        }
    }
}

void FilmDialog::Finish(int ExitCode, QProcess::ExitStatus Status) {
    Follow();
    SetBusy(false);
    if (Cancelled) {
        Told->setText(tr("Cancelled. Nothing was saved."));
    } else if (Status == QProcess::NormalExit && ExitCode == 0) {
        Told->setText(tr("Saved: %1").arg(Path));
    } else {
        Told->setText(tr("Not saved. %1").arg(Error.isEmpty() ? Maker.errorString() : Error));
    }
}

void FilmDialog::SetBusy(bool Busy) {
    for (auto* Field : findChildren<QWidget*>()) {
        const bool IsField = qobject_cast<QAbstractSpinBox*>(Field) != nullptr ||
                             qobject_cast<QComboBox*>(Field) != nullptr || Field == OnlyMap || Field == SaveButton;
        if (IsField) Field->setEnabled(!Busy);
    }
    Bar->setVisible(Busy);
    CancelButton->setText(Busy ? tr("Cancel") : tr("Close"));
}

void FilmDialog::reject() {
    if (Maker.state() == QProcess::NotRunning) {
        QDialog::reject();
        return;
    }
    Cancelled = true;
    Told->setText(tr("Cancelling..."));
    Maker.terminate();
}

void ShowFilmDialog() {
    static QPointer<FilmDialog> Shown;
    if (Shown == nullptr) Shown = new FilmDialog(QApplication::activeWindow());
    Shown->show();
    Shown->raise();
    Shown->activateWindow();
}

}  // namespace gloamtide
