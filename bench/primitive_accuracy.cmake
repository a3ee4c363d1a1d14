# The accuracy of the quad primitives against MPFR: a program built against
# liborv runs them on drawn operands and writes operands and results, a host
# program measures each result against the exact one at 212 bits and prints
# the table that docs/MATH_ACCURACY.md holds. Needs libmpfr-dev on the host.
find_library(ORV_MPFR mpfr)
find_library(ORV_GMP gmp)
if(ORV_MPFR AND ORV_GMP)
  set(errors_tool ${CMAKE_CURRENT_BINARY_DIR}/primitive_errors)
  set(results_file ${CMAKE_CURRENT_BINARY_DIR}/primitive_results.bin)
  set(run_prog ${CMAKE_CURRENT_BINARY_DIR}/primitive_accuracy-orv)
  add_custom_command(OUTPUT ${errors_tool}
    COMMAND ${CMAKE_C_COMPILER} -O2 ${CMAKE_SOURCE_DIR}/tools/primitive_errors.c
            ${ORV_MPFR} ${ORV_GMP} -o ${errors_tool}
    DEPENDS ${CMAKE_SOURCE_DIR}/tools/primitive_errors.c ${CMAKE_SOURCE_DIR}/tools/primitive_cases.h)
  add_custom_command(OUTPUT ${run_prog}
    COMMAND ${ORV_CC} -O2 ${CMAKE_CURRENT_SOURCE_DIR}/primitive_accuracy.c -o ${run_prog}
    DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/primitive_accuracy.c ${CMAKE_SOURCE_DIR}/tools/primitive_cases.h
            orvdll kernel32 ${ORV_TESSAR} ${ORV_LIB_DIR}/crt0.o)
  # The results take about 100 MB: made, measured and removed in one go.
  add_custom_target(primitive_accuracy
    COMMAND ${run_prog} 100000 ${results_file}
    COMMAND ${errors_tool} ${results_file}
    COMMAND ${CMAKE_COMMAND} -E remove ${results_file}
    DEPENDS ${errors_tool} ${run_prog}
    WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR} USES_TERMINAL)
  list(APPEND ORV_BENCH_RUNS primitive_accuracy)
endif()
