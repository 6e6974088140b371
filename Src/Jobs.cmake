zarn_layer(jobs
  SOURCES JobStateMachine.cpp JobChecks.cpp JobTables.cpp JobsMeasurement.cpp JobsTransfer.cpp JobsService.cpp
  LINK records)
