#include "app/command_line.h"

#include <cstdio>

namespace gloamtide {

std::string ToBytes(const QString& Text) { return Text.toLatin1().toStdString(); }

void ParseArguments(QCommandLineParser& Parser, int Count, char** Arguments) {
    QStringList Texts;
    for (int Each = 0; Each < Count; ++Each) Texts.append(QString::fromLatin1(Arguments[Each]));
    Parser.addOptions({{"help", ""}, {"version", ""}});
    Parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    if (!Parser.parse(Texts)) throw UsageError(Parser.errorText());
    const QStringList Given = Parser.optionNames();
    for (const QString& Each : Given) {
        if (Given.count(Each) > 1) throw UsageError("--" + Each + " stands more than once");
    }
}

bool AnswersQuestion(const QCommandLineParser& Parser, const char* Help) {
    if (Parser.isSet("help")) {
        std::fputs(Help, stdout);
    } else if (Parser.isSet("version")) {
        std::puts("Gloamtide " GLOAMTIDE_VERSION);
    } else {
        return false;
    }
    return true;
}

void SayError(const char* Program, const std::string& Text) { std::fprintf(stderr, "%s: %s\n", Program, Text.c_str()); }

}  // namespace gloamtide
