# The mxbench workloads in Python 3, each in a function; prints
# "NAME ns-per-turn". Usage: python3 loops.py [N [WORKLOAD]]
import sys
import time


def int_loop(n):
    i = s = 0
    while i < n:
        s = s + i
        i = i + 1


def float_loop(n):
    i = s = 0.0
    while i < n:
        s = s + i
        i = i + 1.0


def text_loop(n):
    i, t = 0, ""
    while i < n:
        t += str(i)
        if len(t) >= 1000:
            t = ""
        i = i + 1


def call_loop(n):
    # abs is a C function, standing in for a host function
    i = s = 0
    while i < n:
        s = s + abs(i)
        i = i + 1


def builtin_loop(n):
    i = s = 0
    t = "hello world"
    while i < n:
        s = s + len(t)
        i = i + 1


WORKLOADS = [("int", int_loop), ("float", float_loop), ("text", text_loop),
             ("call", call_loop), ("builtin", builtin_loop)]

n = int(sys.argv[1]) if len(sys.argv) > 1 else 1000000
only = sys.argv[2] if len(sys.argv) > 2 else None
for name, loop in WORKLOADS:
    if only is None or only == name:
        start = time.perf_counter()
        loop(n)
        print("%s %.1f" % (name, (time.perf_counter() - start) * 1e9 / n))
