// What the command lines of both programs have in common.
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <stdexcept>
#include <string>

namespace gloamtide {

// The name of a file can be any bytes. So arguments are texts of one character for each byte, of the same number.
std::string ToBytes(const QString& Text);

// What is wrong with a command line.
struct UsageError : std::runtime_error {
    explicit UsageError(const QString& Text) : std::runtime_error(ToBytes(Text)) {}
};

// Takes the arguments of a program apart, "--help" and "--version" besides the options that Parser knows.
//   Errors: throws UsageError where an option is unknown, stands more than once or lacks its value
void ParseArguments(QCommandLineParser& Parser, int Count, char** Arguments);

// Prints the help or the version where one was asked for, and returns whether it was.
bool AnswersQuestion(const QCommandLineParser& Parser, const char* Help);

// "Program: Text" on standard error.
void SayError(const char* Program, const std::string& Text);

}  // namespace gloamtide
