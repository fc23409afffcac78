list(APPEND CORE_SOURCES
  script/Builtins.cpp
  script/CompileError.cpp
  script/Lexer.cpp
  script/Parser.cpp
  script/Program.cpp
  script/RbScript.cpp
  script/SymbolTable.cpp)
