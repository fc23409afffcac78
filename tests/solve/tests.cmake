list(APPEND TEST_SOURCES
  solve/SolverTest.cpp
)
