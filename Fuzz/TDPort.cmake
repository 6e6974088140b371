zarn_fuzz(tdport SOURCES FuzzTDPort.cpp LINK link)
