orv_add_bench(printf printf.c ROUNDS 3)
