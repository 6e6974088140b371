#include "Globals.h"

// For programs without the main window: put this file among their sources.

WndMain* wndMain = nullptr;

QObject* WndMainObject()
{
    return nullptr;
}
