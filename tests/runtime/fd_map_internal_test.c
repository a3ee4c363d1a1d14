/* Unlinking nodes from the descriptor list. This program holds its own
   copy of the list functions, which its start code also used: 0, 1 and 2
   are in it. */
#include <fdmap.h>

#include "harness.h"
#include "platform/k32_faults.h"

extern struct fd_map *__fd_map_head;
void __free_fd_map(struct fd_map *node);

static int fds(int *out) {
    int n = 0;
    for (struct fd_map *p = __fd_map_head; p && n < 16; p = p->next) out[n++] = p->fd;
    return n;
}

int main(void) {
    int got[16], n;
    t_section("free from the middle, the head and the end");
    struct fd_map *three = __new_fd_map(), *four = __new_fd_map();
    CHECK_EQ(three->fd, 3);
    CHECK_EQ(four->fd, 4);
    struct fd_map *zero = __fd_map_head;
    CHECK_EQ(zero->fd, 0);
    __free_fd_map(__find_fd_map(2));
    n = fds(got);
    CHECK_MEM(got, n * sizeof(int), ((int[]){0, 1, 3, 4}), 4 * sizeof(int));
    __free_fd_map(zero);
    n = fds(got);
    CHECK_MEM(got, n * sizeof(int), ((int[]){1, 3, 4}), 3 * sizeof(int));
    __free_fd_map(four);
    CHECK(three->next == 0);
    __free_fd_map(0); /* nothing */
    n = fds(got);
    CHECK_MEM(got, n * sizeof(int), ((int[]){1, 3}), 2 * sizeof(int));

    t_section("numbers come back lowest first");
    /* The head is not 0: the new node takes 0 and goes in front. */
    struct fd_map *a = __new_fd_map();
    CHECK_EQ(a->fd, 0);
    CHECK(__fd_map_head == a);
    struct fd_map *b = __new_fd_map();
    CHECK_EQ(b->fd, 2);
    CHECK(__find_fd_map(1)->next == b);
    CHECK_EQ(__new_fd_map()->fd, 4);
    n = fds(got);
    CHECK_MEM(got, n * sizeof(int), ((int[]){0, 1, 2, 3, 4}), 5 * sizeof(int));

    t_section("an emptied list");
    unsigned frees_before = 0;
    (void)frees_before;
    while (__fd_map_head) __free_fd_map(__fd_map_head);
    CHECK(__find_fd_map(0) == 0);
    struct fd_map *first = __new_fd_map();
    CHECK_EQ(first->fd, 0);
    CHECK(first->next == 0);
    return t_finish();
}
