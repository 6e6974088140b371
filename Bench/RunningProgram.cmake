add_executable(bare-window BareWindow.cpp FirstPaint.cpp)
target_link_libraries(bare-window PRIVATE Qt6::Widgets)

add_executable(program-first-paint FirstPaint.cpp)
target_link_libraries(program-first-paint PRIVATE zarn_main zarn_resources board_desk)

add_executable(program-watched RunningProgram.cpp)
target_link_libraries(program-watched PRIVATE zarn_main zarn_resources robot board_desk)
