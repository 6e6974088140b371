zarn_fuzz(numbers SOURCES FuzzNumbers.cpp LINK rrx)
