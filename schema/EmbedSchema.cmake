# Writes OUTPUT, a C++ file that holds the texts of FILES (separated by commas) one behind the other
# as the variable NAME.
string(REPLACE "," ";" FILES "${FILES}")
set(text "// Written by EmbedSchema.cmake from the SQL files.\n#include <string_view>\n\n")
string(APPEND text "extern const std::string_view ${NAME};\n")
string(APPEND text "const std::string_view ${NAME} =")
foreach(name IN LISTS FILES)
  file(READ "${name}" sql)
  string(APPEND text "\n    R\"sql(${sql})sql\"")
endforeach()
file(WRITE "${OUTPUT}" "${text};\n")
