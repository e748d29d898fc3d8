#!/usr/bin/env python3
"""Generates random expressions of the evaluator's language and evaluates each
with an interpreter of its own, written from the language's rules alone.

Prints one line per case: expression, x, then the value (repr) or
"error:" and the kind.  Usage: reference_eval.py SEED COUNT
"""
import math
import random
import re
import sys

FUNCTIONS = {
    "sin": math.sin, "cos": math.cos, "tan": math.tan, "atn": math.atan,
    "abs": abs, "int": math.floor,
}
RESERVED = {"mod", "and", "or", "not", "xor", "true", "false", "empty", "null", "is"}


class Fail(Exception):
    def __init__(self, kind):
        super().__init__(kind)
        self.kind = kind


def finite(v):
    if math.isinf(v) or math.isnan(v):
        raise Fail("overflow")
    return v


def apply_function(name, v):
    if name == "sqr":
        if v < 0:
            raise Fail("sqr-domain")
        return math.sqrt(v)
    if name == "log":
        if v <= 0:
            raise Fail("log-domain")
        return math.log(v)
    if name == "exp":
        try:
            return finite(math.exp(v))
        except OverflowError:
            raise Fail("overflow")
    if name == "int":
        return float(math.floor(v))
    return FUNCTIONS[name](v)


def power(a, b):
    if a < 0 and b != math.floor(b):
        raise Fail("power-domain")
    if a == 0 and b < 0:
        raise Fail("division-by-zero")
    try:
        return finite(math.pow(a, b))
    except OverflowError:
        raise Fail("overflow")


def binary(op, a, b):
    if op == "+":
        return finite(a + b)
    if op == "-":
        return finite(a - b)
    if op == "*":
        return finite(a * b)
    if op == "/":
        if b == 0:
            raise Fail("overflow" if a == 0 else "division-by-zero")
        return finite(a / b)
    return power(a, b)


TOKEN = re.compile(r"\s*(?:(\d+\.?\d*(?:[eE][+-]?\d+)?|\.\d+(?:[eE][+-]?\d+)?)|"
                   r"([A-Za-z][A-Za-z0-9_]*)|(.))")


def tokenize(text):
    tokens, pos = [], 0
    text = text.rstrip(" \t")
    while pos < len(text):
        m = TOKEN.match(text, pos)
        number, name, other = m.groups()
        if number is not None:
            if re.match(r"[eE]", text[m.end():m.end() + 1] or " "):
                raise Fail("syntax")
            tokens.append(("num", float(number)))
        elif name is not None:
            tokens.append(("name", name.lower()))
        elif other in "+-*/^(),":
            tokens.append(("op", other))
        else:
            raise Fail("syntax")
        pos = m.end()
    return tokens


# Tree nodes: ("num", v), ("x",), ("neg", n), ("bin", op, l, r), ("call", name, [args])
class Parser:
    PRECEDENCE = {"+": 1, "-": 1, "*": 2, "/": 2}

    def __init__(self, tokens):
        self.tokens, self.i = tokens, 0

    def peek(self):
        return self.tokens[self.i] if self.i < len(self.tokens) else ("end", None)

    def take(self):
        t = self.peek()
        self.i += 1
        return t

    def parse(self):
        node = self.binary(1)
        if self.peek()[0] != "end":
            raise Fail("syntax")
        return node

    # Precedence climbing over + - (1) and * / (2); a sign starts a level-2
    # operand and takes in everything up to the next * or /.
    def binary(self, level):
        left = self.signed() if level == 2 else self.binary(2)
        while self.peek()[0] == "op" and self.PRECEDENCE.get(self.peek()[1]) == level:
            op = self.take()[1]
            right = self.signed() if level == 2 else self.binary(2)
            left = ("bin", op, left, right)
        return left

    def signed(self):
        t = self.peek()
        if t == ("op", "-"):
            self.take()
            return ("neg", self.signed())
        if t == ("op", "+"):
            self.take()
            return self.signed()
        node = self.atom()
        while self.peek() == ("op", "^"):
            self.take()
            node = ("bin", "^", node, self.exponent())
        return node

    def exponent(self):
        t = self.peek()
        if t in (("op", "-"), ("op", "+")):
            self.take()
            inner = self.exponent()
            return ("neg", inner) if t[1] == "-" else inner
        return self.atom()

    def atom(self):
        kind, value = self.take()
        if kind == "num":
            return ("num", value)
        if kind == "name":
            if value in RESERVED:
                raise Fail("syntax")
            if self.peek() == ("op", "("):
                self.take()
                args = []
                if self.peek() != ("op", ")"):
                    args.append(self.binary(1))
                    while self.peek() == ("op", ","):
                        self.take()
                        args.append(self.binary(1))
                if self.take() != ("op", ")"):
                    raise Fail("syntax")
                return ("call", value, args)
            if value == "x":
                return ("x",)
            if value in FUNCTIONS or value in ("sqr", "log", "exp"):
                return ("call", value, [])
            return ("num", 0.0)
        if (kind, value) == ("op", "("):
            node = self.binary(1)
            if self.take() != ("op", ")"):
                raise Fail("syntax")
            return node
        raise Fail("syntax")


def evaluate(node, x):
    kind = node[0]
    if kind == "num":
        return node[1]
    if kind == "x":
        return x
    if kind == "neg":
        return -evaluate(node[1], x)
    if kind == "bin":
        a = evaluate(node[2], x)
        return binary(node[1], a, evaluate(node[3], x))
    values = [evaluate(a, x) for a in node[2]]
    name = node[1]
    if name == "x" or not (name in FUNCTIONS or name in ("sqr", "log", "exp")):
        raise Fail("unknown-function")
    if len(values) != 1:
        raise Fail("wrong-arguments")
    return apply_function(name, values[0])


def reference(text, x):
    try:
        return repr(evaluate(Parser(tokenize(text)).parse(), x))
    except Fail as f:
        return "error:" + f.kind


NAMES = ["sin", "cos", "tan", "atn", "sqr", "log", "abs", "int", "exp"]


def number(rng):
    return rng.choice([str(rng.randint(0, 9)), str(rng.randint(10, 400)),
                       "%.3f" % rng.uniform(0, 10), "." + str(rng.randint(1, 99)),
                       "%de%d" % (rng.randint(1, 9), rng.randint(-3, 3)), "0"])


def expression(rng, depth):
    if depth == 0 or rng.random() < 0.25:
        return rng.choice([number(rng), "x", "x", "X", "y", "x2"])
    choice = rng.random()
    if choice < 0.45:
        op = rng.choice(["+", "-", "*", "/", "^", "^", "*"])
        left, right = expression(rng, depth - 1), expression(rng, depth - 1)
        gap = rng.choice(["", " "])
        if op == "^" and rng.random() < 0.3:
            right = "-" + right
        return left + gap + op + gap + right
    if choice < 0.75:
        name = rng.choice(NAMES + NAMES + ["foo", "sgn"])
        arguments = expression(rng, depth - 1)
        if rng.random() < 0.05:
            arguments += "," + expression(rng, depth - 1)
        return name + "(" + arguments + ")"
    if choice < 0.9:
        return "(" + expression(rng, depth - 1) + ")"
    return rng.choice(["-", "+", "- "]) + expression(rng, depth - 1)


def mutate(rng, text):
    cut = rng.randint(0, len(text))
    return text[:cut] + rng.choice([")", "(", "]", "*", "^", "2(", "..", ",", "mod", " ", "sin"]) \
        + text[cut:]


def main():
    rng = random.Random(int(sys.argv[1]))
    for _ in range(int(sys.argv[2])):
        text = expression(rng, rng.randint(1, 5))
        if rng.random() < 0.15:
            text = mutate(rng, text)
        x = "%.15g" % rng.uniform(-6, 6)
        print("%s\t%s\t%s" % (text, x, reference(text, float(x))))


if __name__ == "__main__":
    main()
