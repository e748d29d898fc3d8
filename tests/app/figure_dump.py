#!/usr/bin/env python3
"""figure_dump.py FILE: the floating shapes of a .docx body, one line each,
tab-separated: the group's name base ("-" outside a group), the shape's name
base (before "："), its kind (line, connector, rect, text, path:N with N the points of
its path), left, top, width and height in points within the group, and its
text or field code. Bases keep the end-to-end checks free of the random
digits of the names."""
import sys
import zipfile
import xml.etree.ElementTree as ET

NS = {
    "w": "http://schemas.openxmlformats.org/wordprocessingml/2006/main",
    "wp": "http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing",
    "wps": "http://schemas.microsoft.com/office/word/2010/wordprocessingShape",
    "wpg": "http://schemas.microsoft.com/office/word/2010/wordprocessingGroup",
    "a": "http://schemas.openxmlformats.org/drawingml/2006/main",
}
EMU_PER_POINT = 12700


def base(name):
    return name.split("：")[0]


def kind(wsp):
    sppr = wsp.find("wps:spPr", NS)
    geom = sppr.find("a:prstGeom", NS)
    if geom is not None and geom.get("prst") == "line":
        return "line"
    if wsp.find("wps:cNvCnPr", NS) is not None:
        return "connector"
    path = sppr.find("a:custGeom", NS)
    if path is not None:
        return "path:%d" % len(path.findall(".//a:pt", NS))
    if wsp.find("wps:cNvSpPr", NS).get("txBox") == "1":
        return "text"
    return "rect"


def text(wsp):
    out = []
    for el in wsp.iter():
        if el.tag in ("{%s}t" % NS["w"], "{%s}instrText" % NS["w"]):
            out.append(el.text or "")
    return "".join(out).strip()


def main(path):
    with zipfile.ZipFile(path) as z:
        body = ET.fromstring(z.read("word/document.xml"))
    for anchor in body.iter("{%s}anchor" % NS["wp"]):
        group = base(anchor.find("wp:docPr", NS).get("name"))
        if anchor.find(".//wpg:wgp", NS) is None:
            group = "-"
        for wsp in anchor.iter("{%s}wsp" % NS["wps"]):
            xfrm = wsp.find("wps:spPr/a:xfrm", NS)
            off, ext = xfrm.find("a:off", NS), xfrm.find("a:ext", NS)
            values = [int(off.get("x")), int(off.get("y")), int(ext.get("cx")), int(ext.get("cy"))]
            # A shape outside a group is named by its anchor.
            named = wsp.find("wps:cNvPr", NS)
            if named is None:
                named = anchor.find("wp:docPr", NS)
            print("\t".join([group, base(named.get("name")), kind(wsp)] +
                            ["%.2f" % (v / EMU_PER_POINT) for v in values] + [text(wsp)]))


if __name__ == "__main__":
    main(sys.argv[1])
