zarn_layer(link
  SOURCES TDPort.cpp TDFirmware.cpp TavorDev.cpp TavorDevServices.cpp TavorDevProfile.cpp
  LINK values Threads::Threads)
