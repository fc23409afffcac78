list(APPEND TEST_SOURCES
  calc/MemoryTest.cpp
)
