add_executable(bare-window BareWindow.cpp)
target_link_libraries(bare-window PRIVATE Qt6::Widgets)
