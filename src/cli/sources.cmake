add_library(velmora_console STATIC cli/Commands.cpp cli/Console.cpp)
target_link_libraries(velmora_console PUBLIC velmora_core)
set(CLI_SOURCES cli/main.cpp)
