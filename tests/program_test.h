// What every test of the program stands on: fresh state, fresh windows, an empty current directory, a scripted desktop.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <ostream>
#include <string>

#include "clock/form_animation.h"
#include "frame/form_gt_main.h"
#include "frame/form_pictures.h"
#include "frame/small_dialogs.h"
#include "frame/startup.h"
#include "frame/state.h"
#include "places/form_configure.h"
#include "platform/headless/headless_host.h"
#include "sundial/form_sundial_options.h"

namespace gloamtide {

template <class T>
void PrintTo(const Property<T>& Value, std::ostream* Out) {
    *Out << testing::PrintToString(Value.Get());
}

class ProgramTest : public testing::Test {
protected:
    ProgramTest() {
        LoadedForms.clear();
        Renew(FormPictures);
        Renew(FormGTMain);
        Renew(FormSplash);
        Renew(FormAbout);
        Renew(FormConfigure);
        Renew(FormAnimation);
        Renew(FormSundialOptions);
        state = SharedState{};
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

private:
    template <class T>
    static void Renew(T& Form) {
        std::destroy_at(&Form);
        std::construct_at(&Form);
    }
};

}  // namespace gloamtide
