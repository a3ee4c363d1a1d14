# The accuracy of the quad functions against MPFR: a host program writes
# arguments and results to 212 bits, a program built against liborv
# measures the relative errors in units of 2^-106 and prints the table that
# docs/MATH_ACCURACY.md holds. Needs libmpfr-dev on the host.
if(ORV_MPFR AND ORV_GMP)
  set(qfunctions ${CMAKE_SOURCE_DIR}/tools/quad_functions.h)
  orv_mpfr_tool(qrefs_tool quad_refs ${qfunctions})
  orv_liborv_program(qacc_prog quad_accuracy ${qfunctions})
  set(qrefs_file ${CMAKE_CURRENT_BINARY_DIR}/quad_refs.bin)
  add_custom_command(OUTPUT ${qrefs_file}
    COMMAND ${qrefs_tool} binary 20000 ${qrefs_file}
    DEPENDS ${qrefs_tool}
    COMMENT "Computing MPFR references of the quad functions")
  add_custom_target(quad_accuracy
    COMMAND ${qacc_prog} ${qrefs_file}
    DEPENDS ${qacc_prog} ${qrefs_file}
    WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR} USES_TERMINAL)
  list(APPEND ORV_BENCH_RUNS quad_accuracy)
endif()
