zarn_bench(bench_screens SOURCES BenchScreens.cpp ${PROJECT_SOURCE_DIR}/Tests/Fakes/ScriptedTavorDev.cpp
  LINK screens zarn_resources panel)
target_include_directories(bench_screens PRIVATE ${PROJECT_SOURCE_DIR}/Tests)
