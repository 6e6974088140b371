zarn_bench(bench_link SOURCES BenchLink.cpp LINK link)
target_include_directories(bench_link PRIVATE ${PROJECT_SOURCE_DIR}/Tests)
add_dependencies(bench_link zarn-unit)
target_compile_definitions(bench_link PRIVATE ZARN_UNIT_PROGRAM="$<TARGET_FILE:zarn-unit>")
