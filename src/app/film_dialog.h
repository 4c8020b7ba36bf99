// The dialog that saves a film of what the desktop program shows.
#pragma once

#include <QDialog>
#include <QProcess>
#include <QTemporaryDir>

class QCheckBox;
class QComboBox;
class QDateTimeEdit;
class QFormLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QVBoxLayout;

namespace gloamtide {

// Asks from when to when, in which steps, how large and in which format; gloamtide-still makes the film meanwhile, so
// that the program goes on. It stands beside the program; Cancel, or the end of the program, ends it.
class FilmDialog : public QDialog {
public:
    explicit FilmDialog(QWidget* Parent);
    ~FilmDialog() override;

    void reject() override;  // ends the film that is being made, else closes

private:
    void AddTimes(QFormLayout& Rows);
    void AddPicture(QFormLayout& Rows);
    void AddProgress(QVBoxLayout& Rows);
    void AddButtons(QVBoxLayout& Rows);
    std::int64_t Count() const;  // of pictures; 0 where the end is before the start
    void TellCount();
    void Save();
    QStringList Arguments(const QString& Configuration) const;
    void Follow();  // how far the film is
    void Finish(int ExitCode, QProcess::ExitStatus Status);
    void SetBusy(bool Busy);

    QDateTimeEdit* From = nullptr;
    QDateTimeEdit* To = nullptr;
    QSpinBox* StepNumber = nullptr;
    QComboBox* StepUnit = nullptr;
    QSpinBox* Width = nullptr;
    QSpinBox* Height = nullptr;
    QCheckBox* OnlyMap = nullptr;
    QSpinBox* Rate = nullptr;
    QComboBox* Format = nullptr;
    QProgressBar* Bar = nullptr;
    QLabel* Told = nullptr;
    QPushButton* SaveButton = nullptr;
    QPushButton* CancelButton = nullptr;

    QTemporaryDir Folder;  // of the configuration that gloamtide-still shows
    QProcess Maker;
    QString Path;
    QString Error;  // what gloamtide-still said last
    bool Cancelled = false;
};

// Opens the dialog on the active window, or shows the one that is open.
void ShowFilmDialog();

}  // namespace gloamtide
