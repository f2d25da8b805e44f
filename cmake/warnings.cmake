# Warnings are errors, in our own code: libraries come in as system headers.
add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
# The description of a record takes as many macro arguments as it has members, also none.
add_compile_options($<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>)
# GCC 12 sees overlapping copies in `"text" + std::string` (its bug 105329), and ones beyond the end
# where a long literal becomes a std::string that is moved (105651): a precompiled header no longer
# counts as one of the system's.
add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-restrict$<SEMICOLON>-Wno-array-bounds>)
# Where it optimises most, it reads beyond short texts that are moved in the same way.
add_compile_options("$<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release>>:-Wno-stringop-overread;-Wno-stringop-overflow>")
