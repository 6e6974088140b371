zarn_bench(bench_meatable SOURCES BenchMeaTable.cpp ${PROJECT_SOURCE_DIR}/Tests/Fakes/ScriptedTavorDev.cpp
  ${PROJECT_SOURCE_DIR}/Tests/Fakes/NoWindow.cpp LINK records)
target_include_directories(bench_meatable PRIVATE ${PROJECT_SOURCE_DIR}/Tests)
