// Any bytes as a configuration file.
#pragma once

#include <cstdio>
#include <fstream>
#include <string>

#include "clock/animation.h"
#include "clock/clock.h"
#include "frame/file_commands.h"
#include "platform/headless/headless_host.h"

namespace gloamtide {

// Opens a file of these bytes with the File menu of the running program and lets the clock tick. True where the program
// took the file without a word.
inline bool OpenConfigurationBytes(HeadlessHost& Desktop, const std::string& Bytes) {
    std::remove("any.gtf");  // some file systems write a truncated file to the disk before they go on
    std::ofstream("any.gtf", std::ios::binary) << Bytes;
    Desktop.FileNames = {"any.gtf"};
    Desktop.Messages.clear();
    Desktop.OpenDialogs.clear();
    MenuFileSubOpen_Click();
    const bool Taken = Desktop.Messages.empty();
    FormGTMain_Timer1_Timer();
    return Taken;
}

// One step of the animation that the file asks for.
inline void AnimateOnce() {
    MenuAnimationSubStart_Click();
    FormGTMain_Timer3_Timer();
    MenuAnimationSubStop_Click();
}

}  // namespace gloamtide
