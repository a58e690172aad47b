if(VELK_SANITIZE)
  add_compile_options(-fsanitize=${VELK_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${VELK_SANITIZE})
endif()
