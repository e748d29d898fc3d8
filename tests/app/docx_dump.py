#!/usr/bin/env python3
"""docx_dump.py text|chars FILE: what a .docx body holds, in a form the
end-to-end checks can compare as plain strings.

text: one line per paragraph; a field shows as {code|result} ("|" only when
it has a separator), a native equation as «its characters».
chars: one line per character of the body: the character, then the direct
formatting of its run, tab-separated: ASCII font, i or upright, half-point
size; "-" where the run sets nothing."""
import sys
import zipfile
import xml.etree.ElementTree as ET

W = "{http://schemas.openxmlformats.org/wordprocessingml/2006/main}"
M = "{http://schemas.openxmlformats.org/officeDocument/2006/math}"
FIELD_MARKS = {"begin": "{", "separate": "|", "end": "}"}


def paragraph_text(p):
    out = []
    for el in p.iter():
        if el.tag == W + "fldChar":
            out.append(FIELD_MARKS[el.get(W + "fldCharType")])
        elif el.tag in (W + "t", W + "instrText"):
            out.append(el.text or "")
        elif el.tag == M + "oMath":
            out.append("«" + "".join(t.text or "" for t in el.iter(M + "t")) + "»")
    return "".join(out)


def run_format(r):
    rpr = r.find(W + "rPr")
    font, italic, size = "-", "-", "-"
    if rpr is not None:
        fonts = rpr.find(W + "rFonts")
        if fonts is not None and fonts.get(W + "ascii"):
            font = fonts.get(W + "ascii")
        i = rpr.find(W + "i")
        if i is not None:
            italic = "upright" if i.get(W + "val") in ("0", "false") else "i"
        sz = rpr.find(W + "sz")
        if sz is not None:
            size = sz.get(W + "val")
    return font, italic, size


def characters(body):
    for r in body.iter(W + "r"):
        fmt = run_format(r)
        for t in r:
            if t.tag in (W + "t", W + "instrText"):
                for c in t.text or "":
                    print("\t".join((c,) + fmt))


def main(mode, path):
    body = ET.fromstring(zipfile.ZipFile(path).read("word/document.xml")).find(W + "body")
    if mode == "text":
        for p in body.iter(W + "p"):
            print(paragraph_text(p))
    else:
        characters(body)


if __name__ == "__main__":
    main(*sys.argv[1:])
