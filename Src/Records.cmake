zarn_layer(records
  SOURCES Mea.cpp MeaFile.cpp MeaExport.cpp
  LINK system)
