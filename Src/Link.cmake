# The delivered firmware as data, made from the image as it is in the sensor unit's memory.
set(firmware_image ${PROJECT_SOURCE_DIR}/Firmware/SensorUnit.bin)
set(firmware_script ${PROJECT_SOURCE_DIR}/Firmware/MakeRecords.cmake)
set(firmware_records ${CMAKE_CURRENT_BINARY_DIR}/TDFirmwareRecords.cpp)
add_custom_command(OUTPUT ${firmware_records}
  COMMAND ${CMAKE_COMMAND} -DIMAGE=${firmware_image} -DRECORDS=${firmware_records} -P ${firmware_script}
  DEPENDS ${firmware_image} ${firmware_script}
  COMMENT "Making the firmware's memory records")

zarn_layer(link
  SOURCES TDPort.cpp TDFirmware.cpp ${firmware_records} TavorDev.cpp TavorDevServices.cpp TavorDevProfile.cpp
  LINK values Threads::Threads)
