# The accuracy of the quad primitives against MPFR: a program built against
# liborv runs them on drawn operands and writes operands and results, a host
# program measures each result against the exact one at 212 bits and prints
# the table that docs/MATH_ACCURACY.md holds. Needs libmpfr-dev on the host.
if(ORV_MPFR AND ORV_GMP)
  set(cases ${CMAKE_SOURCE_DIR}/tools/primitive_cases.h)
  orv_mpfr_tool(errors_tool primitive_errors ${cases})
  orv_liborv_program(run_prog primitive_accuracy ${cases})
  set(results_file ${CMAKE_CURRENT_BINARY_DIR}/primitive_results.bin)
  # The results take about 100 MB: made, measured and removed in one go.
  add_custom_target(primitive_accuracy
    COMMAND ${run_prog} 100000 ${results_file}
    COMMAND ${errors_tool} ${results_file}
    COMMAND ${CMAKE_COMMAND} -E remove ${results_file}
    DEPENDS ${errors_tool} ${run_prog}
    WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR} USES_TERMINAL)
  list(APPEND ORV_BENCH_RUNS primitive_accuracy)
endif()
