# 64-bit arithmetic helpers against libgcc's, which the host's compiler calls.
orv_add_bench(div64 div64.c ROUNDS 5 ORV_LIBS -DBENCH_ORV_HELPERS)
