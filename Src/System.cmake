zarn_layer(system
  SOURCES Settings.cpp Globals.cpp GlobalsDisplay.cpp GlobalsLanguage.cpp Hourglass.cpp PrintIt.cpp
  LINK link Qt6::Core)
