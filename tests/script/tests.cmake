list(APPEND TEST_SOURCES
  script/EngineTest.cpp
  script/FuzzCorpusTest.cpp)
