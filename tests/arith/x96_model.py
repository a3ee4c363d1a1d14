"""Bit-exact model of the x96 product, quotient and power in Python big
integers, and the generator of the vectors in x96_test.c. The product sums
the partial products of limb sums 2 and up exactly; the quotient takes 95
quotient bits exactly. Run: python3 x96_model.py"""
import random
M32 = 0xFFFFFFFF
def field(x): return (x[0] >> 16) & 0x7FFF
def mulx(a, b):
    fa, fb = field(a), field(b)
    if fa == 0 or fb == 0: return (0, 0, 0)
    sign = (a[0] ^ b[0]) & 0x80000000
    e = fa + fb - 32765
    A = a[1] << 32 | a[2]; B = b[1] << 32 | b[2]
    la = [(A >> (16*i)) & 0xFFFF for i in range(4)]
    lb = [(B >> (16*i)) & 0xFFFF for i in range(4)]
    S = sum(la[i]*lb[j] << (16*(i+j)) for i in range(4) for j in range(4) if i+j >= 2) >> 32
    p_lo = S & M32
    if (p_lo & 0x40000000) and (p_lo & 0xBFFFFFFF): S += 0x80000000
    if not (S >> 95):
        S <<= 1; e -= 1
    return (sign | (((e + 16383) << 16) & M32), (S >> 64) & M32, (S >> 32) & M32)
def divx(a, b):
    d = field(a) - field(b)
    if d < -16382: return (0, 0, 0)
    sign = (a[0] ^ b[0]) & 0x80000000
    A = a[1] << 32 | a[2]; B = b[1] << 32 | b[2]
    if A < B: A <<= 1; d -= 1
    Q = (A << 94) // B
    assert Q >> 94 == 1
    q_lo = Q & M32
    if (q_lo & 0x40000000) and (q_lo & 0xBFFFFFFF):
        Q += 0x80000000
        if Q >> 95: Q >>= 1; d += 1
    R = Q >> 31
    return (sign | (((d + 16383) << 16) & M32), (R >> 32) & M32, R & M32)
ONE = (0x3FFF0000, 0x80000000, 0)
def xtoi(x, p):
    if p == 0: return ONE
    base, acc, c = x, ONE, abs(p)
    while True:
        bit = c & 1; c >>= 1
        if c == 0: break
        if bit: acc = mulx(base, acc)
        base = mulx(base, base)
    r = mulx(base, acc)
    if p < 0: r = divx(ONE, r)
    return r
TEN = (0x40020000, 0xA0000000, 0)
print("powers")
for k in [28, 40, 100, 300, 1000, 4000, 4931, -1, -5, -28, -100, -300, -1000, -4000, -4930]:
    r = xtoi(TEN, k)
    print("    {%d, {0x%08X, 0x%08X, 0x%08X}}," % (k, r[0], r[1], r[2]))

random.seed(4)
def rx():
    s = random.getrandbits(64) | 1 << 63
    return (random.choice([0, 0x80000000]) | random.randint(16000, 16700) << 16, s >> 32, s & M32)
def show(a, b, r):
    print("    {{0x%08X, 0x%08X, 0x%08X}, {0x%08X, 0x%08X, 0x%08X}, {0x%08X, 0x%08X, 0x%08X}}," % (a + b + r))
print("products")
pairs = [rx() for _ in range(12)]
for i in range(0, 12, 2): show(pairs[i], pairs[i+1], mulx(pairs[i], pairs[i+1]))
for B in (0x8000000000000003, 0x8000000000000001):
    a = (0x3FFF0000, 0xC0000000, 0); b = (0x3FFF0000, B >> 32, B & M32)
    show(a, b, mulx(a, b))
print("quotients")
pairs = [rx() for _ in range(12)]
for i in range(0, 12, 2): show(pairs[i], pairs[i+1], divx(pairs[i], pairs[i+1]))
# ties on the quotient bits alone (a remainder stays): A 2^63 mod B just over B/2
found = {}
while len(found) < 2:
    B = (1 << 63) | random.getrandbits(40) << 1 | 1
    r = (B + 1) // 2
    A = r * pow(1 << 63, -1, B) % B + B
    if A >> 64: continue
    Q = (A << 94) // B
    if Q & 0x7FFFFFFF != 0x40000000: continue
    found.setdefault((Q >> 31) & 1, (A, B))
for odd in (0, 1):
    A, B = found[odd]
    a = (0x3FFF0000, A >> 32, A & M32); b = (0x3FFF0000, B >> 32, B & M32)
    show(a, b, divx(a, b))
