zarn_fuzz(meahdrs SOURCES ${CMAKE_CURRENT_LIST_DIR}/FuzzMeaHeaders.cpp ${PROJECT_SOURCE_DIR}/Tests/Fakes/ScriptedTavorDev.cpp
  ${PROJECT_SOURCE_DIR}/Tests/Fakes/NoWindow.cpp LINK records)
target_include_directories(fuzz_meahdrs PRIVATE ${PROJECT_SOURCE_DIR}/Tests)
target_compile_definitions(fuzz_meahdrs PRIVATE MEA_CORPUS="${PROJECT_SOURCE_DIR}/Fuzz/Corpus/mea")
