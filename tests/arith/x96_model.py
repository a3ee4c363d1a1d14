"""Bit-exact model of the x96 product, quotient and power in Python big
integers; prints the vectors of x96_test.c. The product sums exactly the
partial products of limb sums 2 and up, the quotient takes 95 quotient bits
exactly; rounding as the library does it."""
import random

M32 = 0xFFFFFFFF
ONE, TEN = (0x3FFF0000, 0x80000000, 0), (0x40020000, 0xA0000000, 0)
field = lambda x: (x[0] >> 16) & 0x7FFF
sig = lambda x: x[1] << 32 | x[2]

def pack(sign, f, s):
    return (sign | ((f << 16) & M32), (s >> 32) & M32, s & M32)

def mulx(a, b):
    if field(a) == 0 or field(b) == 0: return (0, 0, 0)
    e = field(a) + field(b) - 32765
    la = [(sig(a) >> 16 * i) & 0xFFFF for i in range(4)]
    lb = [(sig(b) >> 16 * i) & 0xFFFF for i in range(4)]
    p = sum(la[i] * lb[j] << 16 * (i + j) for i in range(4) for j in range(4) if i + j >= 2) >> 32
    if p & 0x40000000 and p & 0xBFFFFFFF: p += 0x80000000
    if not p >> 95: p, e = p << 1, e - 1
    return pack((a[0] ^ b[0]) & 0x80000000, e + 16383, p >> 32)

def divx(a, b):
    d, A, B = field(a) - field(b), sig(a), sig(b)
    if d < -16382: return (0, 0, 0)
    if A < B: A, d = A << 1, d - 1
    q = (A << 94) // B
    if q & 0x40000000 and q & 0xBFFFFFFF:
        q += 0x80000000
        if q >> 95: q, d = q >> 1, d + 1
    return pack((a[0] ^ b[0]) & 0x80000000, d + 16383, q >> 31)

def xtoi(x, p):
    if p == 0: return ONE
    base, acc, c = x, ONE, abs(p)
    while True:
        bit, c = c & 1, c >> 1
        if c == 0: break
        if bit: acc = mulx(base, acc)
        base = mulx(base, base)
    r = mulx(base, acc)
    return divx(ONE, r) if p < 0 else r

def words(*xs): return ", ".join("{0x%08X, 0x%08X, 0x%08X}" % x for x in xs)

print("powers")
for k in [28, 300, 4000, 4931, -1, -28, -300, -4000, -4930]:
    print("    {%d, %s}," % (k, words(xtoi(TEN, k))))
random.seed(4)
rx = lambda: pack(random.choice([0, 0x80000000]), random.randint(16000, 16700),
                  random.getrandbits(64) | 1 << 63)
print("products")
for a, b in [(rx(), rx()) for _ in range(4)]: print("    {%s}," % words(a, b, mulx(a, b)))
for B in (0x8000000000000003, 0x8000000000000001):  # ties: stays on even, rounds up
    a, b = pack(0, 16383, 0xC << 60), pack(0, 16383, B)
    print("    {%s}," % words(a, b, mulx(a, b)))
# Products whose result shows that the three lowest limb products are left
# out: the full product would give other words.
def full_mulx(a, b):
    e, p = field(a) + field(b) - 32765, sig(a) * sig(b) >> 32
    if p & 0x40000000 and p & 0xBFFFFFFF: p += 0x80000000
    if not p >> 95: p, e = p << 1, e - 1
    return pack((a[0] ^ b[0]) & 0x80000000, e + 16383, p >> 32)
shown, own = [], random.Random(5)  # a stream of its own leaves the others as they were
while len(shown) < 2:
    a, b = pack(0, 16383, own.getrandbits(64) | 1 << 63), pack(0, 16383, own.getrandbits(64) | 1 << 63)
    if mulx(a, b) != full_mulx(a, b): shown.append((a, b))
for a, b in shown: print("    {%s}," % words(a, b, mulx(a, b)))
print("quotients")
for a, b in [(rx(), rx()) for _ in range(4)]: print("    {%s}," % words(a, b, divx(a, b)))
# Ties on the quotient bits alone, a remainder behind: A 2^63 mod B just
# over B/2. The first stays on even, the second rounds up.
found = {}
while len(found) < 2:
    B = 1 << 63 | random.getrandbits(40) << 1 | 1
    A = (B + 1) // 2 * pow(1 << 63, -1, B) % B + B
    q = (A << 94) // B
    if not A >> 64 and q & 0x7FFFFFFF == 0x40000000: found.setdefault(q >> 31 & 1, (A, B))
for odd in (0, 1):
    a, b = pack(0, 16383, found[odd][0]), pack(0, 16383, found[odd][1])
    print("    {%s}," % words(a, b, divx(a, b)))
# Nearly equal significands, where a partial remainder reaches the
# divisor's top word: word-by-word long division must not trip over them.
for A, B in [(0xEC80FAD7E194DF3D, 0xEC80FAD7E194DEEC), (0x82B6A80399EAC346, 0x82B6A80399EAC347),
             (0x9C7FF0F1E4810F9D, 0x9C7FF0F1E4810F9E)]:
    a, b = pack(0, 16383, A), pack(0, 16383, B)
    print("    {%s}," % words(a, b, divx(a, b)))
