if(KAVELA_SANITIZERS)
    add_compile_options(-fsanitize=${KAVELA_SANITIZERS} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${KAVELA_SANITIZERS})
endif()
