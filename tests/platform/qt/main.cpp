// The tests of the Qt host run inside one application, on Qt's offscreen platform.

#include <gtest/gtest.h>

#include <QApplication>

int main(int Count, char** Arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "IST-5:30");  // so that local time is not Greenwich time
    testing::InitGoogleTest(&Count, Arguments);
    const QApplication Application(Count, Arguments);
    return RUN_ALL_TESTS();
}
