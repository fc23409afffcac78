list(APPEND CORE_SOURCES
  calc/Evaluate.cpp
  calc/Normalise.cpp
)
