orv_add_bench(string string.c ROUNDS 5)
