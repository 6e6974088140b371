set(screens_sources
  WndMain.cpp WndMainStart.cpp WndMainSensors.cpp WndMainStatus.cpp WndMainJobs.cpp WndMainJobEnds.cpp WndMainMeasurements.cpp InspectionMode.cpp)
zarn_layer(screens SOURCES ${screens_sources} LINK dialogs jobs Qt6::Widgets PCH <QtWidgets>)
set_target_properties(screens PROPERTIES AUTOUIC_SEARCH_PATHS ${CMAKE_CURRENT_SOURCE_DIR}
  AUTOGEN_TARGET_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/WndMain.ui)

# The entry point, shared by the programs that differ in their board alone.
add_library(zarn_main OBJECT Main.cpp)
target_link_libraries(zarn_main PUBLIC screens)

add_executable(zarn)
target_link_libraries(zarn PRIVATE zarn_main zarn_resources board_device)

add_executable(zarn-desk)
target_link_libraries(zarn-desk PRIVATE zarn_main zarn_resources board_desk)
