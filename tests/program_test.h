// What every test of the program stands on: fresh state, fresh windows, an empty current directory, a scripted desktop.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>

#include "frame/startup.h"
#include "platform/headless/headless_host.h"
#include "tests/fresh_program.h"

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

    void WriteFile(const std::string& Name, const std::string& Bytes) const {
        std::ofstream(Folder / Name, std::ios::binary) << Bytes;
    }

    HeadlessHost Desktop;
    std::filesystem::path Folder;  // current directory of the test
};

}  // namespace gloamtide
