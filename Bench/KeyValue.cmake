zarn_bench(bench_keyvalue SOURCES BenchKeyValue.cpp LINK rrx)
