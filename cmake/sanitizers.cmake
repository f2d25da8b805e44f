if(KAVELA_SANITIZERS)
    add_compile_options(-fsanitize=${KAVELA_SANITIZERS} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    # GCC 12 sees overflows and functions without a value in code that it instrumented itself.
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overflow>
                        $<$<CXX_COMPILER_ID:GNU>:-Wno-array-bounds>
                        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    add_link_options(-fsanitize=${KAVELA_SANITIZERS})
endif()
