zarn_layer(values
  SOURCES Types.cpp Conversions.cpp SLVersion.cpp BiC.cpp Config.cpp
  LINK rrx Qt6::Core)
