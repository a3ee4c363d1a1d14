orv_add_bench(scanf scanf.c ROUNDS 3)
