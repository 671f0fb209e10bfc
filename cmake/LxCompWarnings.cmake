# The project's own targets build warning-free; Qt's and generated code are system headers.
function(lxcomp_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Werror)
endfunction()
