# The accuracy of the double and float families against MPFR: a host
# program writes arguments and correctly rounded results, a program built
# against liborv measures its errors in ulps and prints the table that
# docs/MATH_ACCURACY.md holds. Needs libmpfr-dev on the host.
if(ORV_MPFR AND ORV_GMP)
  set(math_functions ${CMAKE_SOURCE_DIR}/tools/math_functions.h)
  orv_mpfr_tool(refs_tool math_refs ${math_functions})
  orv_liborv_program(acc_prog math_accuracy ${math_functions})
  set(refs_file ${CMAKE_CURRENT_BINARY_DIR}/math_refs.bin)
  add_custom_command(OUTPUT ${refs_file}
    COMMAND ${refs_tool} binary 20000 ${refs_file}
    DEPENDS ${refs_tool}
    COMMENT "Computing MPFR references")
  add_custom_target(math_accuracy
    COMMAND ${acc_prog} ${refs_file}
    DEPENDS ${acc_prog} ${refs_file}
    WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR} USES_TERMINAL)
  list(APPEND ORV_BENCH_RUNS math_accuracy)
endif()
