list(APPEND CORE_SOURCES
  solve/Solvers.cpp
)
