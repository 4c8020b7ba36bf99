// The windows without settings: the splash and About.
#pragma once

namespace gloamtide {

// Puts picture and text of the splash in their places on this screen.
void PlaceSplash();

// Joins About's controls with their handlers, and the menu item that opens it.
void ConnectAbout();

void FormAbout_Form_Load();
void MenuHelpSubAbout_Click();
void CmdAboutOK_Click();

}  // namespace gloamtide
