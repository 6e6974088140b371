#pragma once

/// Gives the application the colours and the style sheet of all its windows, if it hasn't got them yet.
void DressApplication();
