zarn_layer(records
  SOURCES Mea.cpp MeaFile.cpp MeaExport.cpp MeaHeader.cpp MeaTable.cpp
  LINK system Qt6::Gui)
