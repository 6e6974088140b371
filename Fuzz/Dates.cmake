zarn_fuzz(dates SOURCES FuzzDates.cpp LINK rrx)
