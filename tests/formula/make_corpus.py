#!/usr/bin/env python3
"""Writes corpus.txt: the worked examples of the notation, textbook formulas,
and generated combinations of every construct with every kind of operand.
Run it again after changing the lists; the corpus is checked in."""
import itertools
import pathlib

EXAMPLES = """x^2+y^2
lg2
log2
g2
g(2)
g(3,x)+1
sqr(3,x)+1
sqrt(x)
g@a
(a+b)/(c+d)
(a)+(b)/c
3x/2
12/5
x^2/2
x^2
x^(n+1)
x^(1/2)
x^12
a_12
a_n
A(5,3)
P(5,3)
C(n,m)
xl(AB)
hu(A)
hu(ABC)
abar
(ab)bar
fcz(x+y=1,x-y=3)
fcz(x+y=1，x-y=3)
@a+@b
pi
a>=b
a<>b
a+-b
a-+b
1/@a
g1g2g3g4g5g6g7g8g9g(10)""".splitlines()

TEXTBOOK = """x=(-b+-g(b^2-4ac))/(2a)
S=1/2ah
S=@pr^2
V=4/3@pr^3
a^2+b^2=c^2
(a+b)^2=a^2+2ab+b^2
(a-b)^2=a^2-2ab+b^2
a^2-b^2=(a+b)(a-b)
y=kx+b
y=ax^2+bx+c
y=a(x-h)^2+k
y=k/x
x_1+x_2=-b/a
x_1x_2=c/a
@D=b^2-4ac
sin^2@a+cos^2@a=1
tan@a=sin@a/cos@a
sin(@a+@b)=sin@acos@b+cos@asin@b
cos2@a=1-2sin^2@a
a_n=a_1+(n-1)d
S_n=n(a_1+a_n)/2
a_n=a_1q^(n-1)
S_n=(a_1(1-q^n))/(1-q)
log_a(MN)=log_aM+log_aN
lg100=2
a^(m/n)=g(n,a^m)
g(a^2)=|a|
g2*g3=g6
(g3+g2)(g3-g2)=1
1/(g2+1)=g2-1
g(x-1)>=0
x>=2
x<=-1
-3<x<=5
x<>0
|x-1|<2
C(n,m)=A(n,m)/A(m,m)
A(n,m)=n!/(n-m)!
C(5,2)+C(5,3)=C(6,3)
P(4,2)=12
xl(AB)+xl(BC)=xl(AC)
xl(a)*xl(b)=|xl(a)||xl(b)|cos@q
hu(AB)=hu(CD)
fcz(x+y=5,2x-y=1)
fcz(x^2+y^2=25,y=x+1)
fcz(2x-1>3,x+2<=7)
fcz(a_1=1,a_n=2a_(n-1)+1)
(x+1)bar
zbar=a-bi
(a+bi)bar
abar*bbar
x^2+2x+1=(x+1)^2
x^3-1=(x-1)(x^2+x+1)
(x^2-1)/(x+1)=x-1
1/2+1/3=5/6
(1/2)^2=1/4
2^10=1024
10^(-3)=0.001
e^(i@p)+1=0
y=2^x
y=log_2x
y=x^(1/3)
f(x)=g(x^2+1)
f'(x)=2x
S=(a+b)h/2
c=2@pr
d=g((x_2-x_1)^2+(y_2-y_1)^2)
k=(y_2-y_1)/(x_2-x_1)
(x-a)^2+(y-b)^2=r^2
x^2/a^2+y^2/b^2=1
x^2/a^2-y^2/b^2=1
y^2=2px
e=c/a
a_1^2+a_2^2
x_(n+1)=x_n/2
g(g2+1)
g(3,g(2,x))
sqr(x^2+1)
sqrx
sqr@b
gx+gy
2g3-g12
@a@b@c@d
@p/2
2@p/3
sin(@p/6)=1/2
cos(@p/3)=1/2
tan(@p/4)=1
(1+x)^n
(a+b)^(n+1)
x^(2n)
x^(-1)=1/x
3/4x
(3/4)x
4/(3x)
(2x+1)/(3x-2)
((a+b)/c)/d
a/(b/c)
1/(1+1/x)
x^2_1
1+2+...+n=n(n+1)/2
12345/6789
A+B=C
2x+3y=6
ab+bc+ca
x²+1
（a+b）/2
中文x^2
△ABC≌△DEF
∠A=60°
x∈R
A∩B=K
""".splitlines()

OPERANDS = ["x", "2", "12", "(a+b)", "x^2", "g3", "@a", "(1/2)", "a_1", "pi",
            "(x-1)", "A(3,2)", "xl(AB)", "abar", "(ab)bar"]
TEMPLATES = ["{}/{}", "g({})+{}", "g(3,{})-{}", "{}^({})", "{}_({})", "{}+{}",
             "({})/({})", "fcz({}=1,{}=2)", "C({},{})", "({}){}bar"]


def generated():
    pairs = itertools.product(TEMPLATES, itertools.combinations(OPERANDS, 2))
    for n, (template, (a, b)) in enumerate(pairs):
        if n % 4 == 0 or template in ("{}/{}", "{}^({})"):
            if not stacks_scripts(template, a, b):
                yield template.format(a, b)


def stacks_scripts(template, a, b):
    """A script on a base that already has one is a typing error, not a formula."""
    scripted = lambda t: any(op in t for op in ("^", "_", "A("))
    if template in ("{}^({})", "{}_({})"):
        return scripted(a)
    return template == "({}){}bar" and scripted(b)


def main():
    seen, lines = set(), []
    for line in EXAMPLES + TEXTBOOK + sorted(generated()):
        if line and line not in seen:
            seen.add(line)
            lines.append(line)
    out = pathlib.Path(__file__).with_name("corpus.txt")
    out.write_text("\n".join(lines) + "\n", encoding="utf-8")
    print(len(lines), "formulas")


if __name__ == "__main__":
    main()
