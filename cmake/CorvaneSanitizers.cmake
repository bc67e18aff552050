# Sanitizers reach every target, since objects with and without them do not mix well.
if(CORVANE_SANITIZE)
    add_compile_options(-fsanitize=${CORVANE_SANITIZE} -fno-omit-frame-pointer
                        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${CORVANE_SANITIZE})
endif()
