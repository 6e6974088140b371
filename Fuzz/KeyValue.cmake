zarn_fuzz(keyvalue SOURCES FuzzKeyValue.cpp LINK rrx)
