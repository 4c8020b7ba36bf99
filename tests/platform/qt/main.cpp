// The tests of the Qt host run inside one application, on Qt's offscreen platform where no other is asked for.

#include <gtest/gtest.h>

#include <QApplication>

int main(int Count, char** Arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "IST-5:30");  // so that local time is not Greenwich time
    testing::InitGoogleTest(&Count, Arguments);
    const QApplication Application(Count, Arguments);
    return RUN_ALL_TESTS();
}
