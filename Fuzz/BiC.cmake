zarn_fuzz(bic SOURCES FuzzBiC.cpp LINK link)
