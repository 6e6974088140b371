# Turns the sensor unit's image into the table of memory records that the program carries.
# Call: cmake -DIMAGE=file.bin -DRECORDS=file.cpp -P MakeRecords.cmake
set(record_size 64)
file(READ ${IMAGE} hex HEX)
string(LENGTH "${hex}" digits)
set(records "")
set(location 0)
while(digits GREATER 0)
  math(EXPR taken "2 * ${record_size}")
  if(digits LESS taken)
    set(taken ${digits})
  endif()
  string(SUBSTRING "${hex}" 0 ${taken} data)
  string(SUBSTRING "${hex}" ${taken} -1 hex)
  math(EXPR digits "${digits} - ${taken}")
  math(EXPR num "${taken} / 2")
  string(REGEX REPLACE "(..)" "0x\\1," data "${data}")
  math(EXPR shown "${location}" OUTPUT_FORMAT HEXADECIMAL)
  string(APPEND records "    {${shown}, ${num}, {${data}}},\n")
  math(EXPR location "${location} + ${record_size}")
endwhile()
file(CONFIGURE OUTPUT ${RECORDS} CONTENT [[
// Made from the sensor unit's image.
#include "TDFirmware.h"

const MemRecord TDFW_MEM_RECORDS[] = {
@records@};

const MemRecord* const TDFW_DATA_TABLE = TDFW_MEM_RECORDS;
const RR::SInt32 TDFW_DATA_TABLE_SIZE = sizeof TDFW_MEM_RECORDS / sizeof TDFW_MEM_RECORDS[0];
]] @ONLY)
