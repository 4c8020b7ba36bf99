// What every test of the program stands on: fresh state, fresh windows, an empty current directory, a scripted desktop.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "clock/clock.h"
#include "clock/recomputation.h"
#include "forms/layout.h"
#include "frame/startup.h"
#include "map/day_night.h"
#include "map/geometry.h"
#include "platform/headless/headless_host.h"
#include "state/numbers.h"
#include "storage/configuration.h"
#include "storage/files.h"
#include "tests/fresh_program.h"
#include "tests/golden.h"
#include "tests/vectors.h"

namespace gloamtide {

// Long tests run so many times shorter under the sanitizers, which take that much longer and find it all the same.
#ifdef __SANITIZE_ADDRESS__
constexpr int SanitizedShare = 10;
#else
constexpr int SanitizedShare = 1;
#endif

template <class T>
void PrintTo(const Property<T>& Value, std::ostream* Out) {
    *Out << testing::PrintToString(Value.Get());
}

class ProgramTest : public testing::Test {
protected:
    ProgramTest() {
        RenewProgram();
        const std::string Pattern = (std::filesystem::temp_directory_path() / "gloamtide-test-XXXXXX").string();
        std::string Name = Pattern;
        Folder = mkdtemp(Name.data());
        std::filesystem::current_path(Folder);
    }

    ~ProgramTest() override {
        std::filesystem::current_path("/");
        std::filesystem::remove_all(Folder);
    }

    // Starts the program with the default configuration and no message.
    static void Start() {
        state.StartupSource = ConfigurationSource::Defaults;
        StartProgram();
    }
    void Start(int ScreenWidth) {
        Desktop.ScreenWidth = ScreenWidth;
        Start();
    }

    void WriteFile(const std::string& Name, const std::string& Bytes) const {
        std::ofstream(Folder / Name, std::ios::binary) << Bytes;
    }

    // The messages since the last call, each after two beeps: its title, its mark, if any, and its text.
    void ExpectMessages(const std::vector<std::string>& Expected) {
        std::vector<std::string> Shown;
        for (const auto& [Box, BeepsBefore] : std::exchange(Desktop.Messages, {})) {
            const bool Asks = Box.Icon == MessageIcon::Question;
            EXPECT_EQ(std::pair(Box.Buttons == MessageButtons::YesNo, BeepsBefore), std::pair(Asks, 2));
            Shown.push_back(Box.Title + (Asks ? " (?): " : Box.Icon == MessageIcon::None ? ": " : " (!): ") + Box.Text);
        }
        EXPECT_EQ(Shown, Expected);
    }

    HeadlessHost Desktop;
    std::filesystem::path Folder;  // current directory of the test
};

}  // namespace gloamtide
