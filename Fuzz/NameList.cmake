zarn_fuzz(namelist SOURCES FuzzNameList.cpp ${PROJECT_SOURCE_DIR}/Tests/Fakes/NoWindow.cpp LINK dialogs)
