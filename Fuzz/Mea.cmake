zarn_fuzz(mea SOURCES ${CMAKE_CURRENT_LIST_DIR}/FuzzMea.cpp ${PROJECT_SOURCE_DIR}/Tests/Fakes/ScriptedTavorDev.cpp
  ${PROJECT_SOURCE_DIR}/Tests/Fakes/NoWindow.cpp LINK records)
target_include_directories(fuzz_mea PRIVATE ${PROJECT_SOURCE_DIR}/Tests)
