#pragma once

/// Makes a program without a display look like the instrument.
namespace Panel {

/// Gives the platform without a screen one of 800 x 480 pixels, unless the environment names another platform. To be called
/// before the application is made.
void ChooseScreen();

/// Gives the application the program's font and style sheet.
void Dress();

}
