list(APPEND CORE_SOURCES
  calc/Evaluate.cpp
  calc/FactorialText.cpp
  calc/Keypad.cpp
  calc/Memory.cpp
  calc/Normalise.cpp
)
