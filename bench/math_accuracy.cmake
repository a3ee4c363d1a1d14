# The accuracy of the double and float families against MPFR: a host
# program writes arguments and correctly rounded results, a program built
# against liborv measures its errors in ulps and prints the table that
# docs/MATH_ACCURACY.md holds. Needs libmpfr-dev on the host.
find_library(ORV_MPFR mpfr)
find_library(ORV_GMP gmp)
if(ORV_MPFR AND ORV_GMP)
  set(refs_tool ${CMAKE_CURRENT_BINARY_DIR}/math_refs)
  set(refs_file ${CMAKE_CURRENT_BINARY_DIR}/math_refs.bin)
  set(acc_prog ${CMAKE_CURRENT_BINARY_DIR}/math_accuracy-orv)
  add_custom_command(OUTPUT ${refs_tool}
    COMMAND ${CMAKE_C_COMPILER} -O2 ${CMAKE_SOURCE_DIR}/tools/math_refs.c
            ${ORV_MPFR} ${ORV_GMP} -lm -o ${refs_tool}
    DEPENDS ${CMAKE_SOURCE_DIR}/tools/math_refs.c)
  add_custom_command(OUTPUT ${refs_file}
    COMMAND ${refs_tool} binary 20000 ${refs_file}
    DEPENDS ${refs_tool}
    COMMENT "Computing MPFR references")
  add_custom_command(OUTPUT ${acc_prog}
    COMMAND ${ORV_CC} -O2 ${CMAKE_CURRENT_SOURCE_DIR}/math_accuracy.c -o ${acc_prog}
    DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/math_accuracy.c orvdll kernel32 ${ORV_LIB_DIR}/crt0.o)
  add_custom_target(math_accuracy
    COMMAND ${acc_prog} ${refs_file}
    DEPENDS ${acc_prog} ${refs_file}
    WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR} USES_TERMINAL)
  list(APPEND ORV_BENCH_RUNS math_accuracy)
endif()
