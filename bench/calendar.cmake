orv_add_bench(calendar calendar.c ROUNDS 5)
