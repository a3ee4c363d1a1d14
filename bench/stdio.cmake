orv_add_bench(stdio stdio.c ROUNDS 3)
