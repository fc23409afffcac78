set(CLI_SOURCES cli/main.cpp)
