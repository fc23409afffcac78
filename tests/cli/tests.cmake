list(APPEND TEST_SOURCES
  cli/CommandsTest.cpp
  cli/ScenarioTest.cpp
)
