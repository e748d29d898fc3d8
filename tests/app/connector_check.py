#!/usr/bin/env python3
"""connector_check.py FILE: every connector of the .docx body's groups must
have both ends attached (a:stCxn, a:endCxn) and lie, within 0.05 pt, on the
connection site it names, the site computed here from the preset geometry
of the shape it is attached to. Prints one line per connector: the texts of
the two shapes and the site numbers (1-based, as Word counts them)."""
import sys
import zipfile
import xml.etree.ElementTree as ET

NS = {
    "wps": "http://schemas.microsoft.com/office/word/2010/wordprocessingShape",
    "wpg": "http://schemas.microsoft.com/office/word/2010/wordprocessingGroup",
    "a": "http://schemas.openxmlformats.org/drawingml/2006/main",
    "w": "http://schemas.openxmlformats.org/wordprocessingml/2006/main",
}
EMU = 12700.0


def sites(preset, w, h):
    """The cxnLst of the preset: top, left, bottom, right."""
    if preset == "flowChartInputOutput":
        # The path runs (w/5, 0) (w, 0) (4w/5, h) (0, h); its sites are x3 =
        # 2w/5 on top, wd10 at mid height, x4 = 3w/5 below, 9w/10 on the right.
        return [(2 * w / 5, 0), (w / 10, h / 2), (3 * w / 5, h), (9 * w / 10, h / 2)]
    assert preset in ("rect", "flowChartProcess", "flowChartDecision",
                      "flowChartTerminator"), preset
    return [(w / 2, 0), (0, h / 2), (w / 2, h), (w, h / 2)]


def frame(wsp):
    xfrm = wsp.find("wps:spPr/a:xfrm", NS)
    off, ext = xfrm.find("a:off", NS), xfrm.find("a:ext", NS)
    return ([int(off.get(k)) / EMU for k in ("x", "y")] + [int(ext.get(k)) / EMU for k in ("cx", "cy")],
            xfrm.get("flipH") == "1", xfrm.get("flipV") == "1")


def text(wsp):
    return "".join(t.text or "" for t in wsp.iter("{%s}t" % NS["w"]))


def main(path):
    body = ET.fromstring(zipfile.ZipFile(path).read("word/document.xml"))
    count = 0
    for group in body.iter("{%s}wgp" % NS["wpg"]):
        shapes = {}
        for wsp in group.findall("wps:wsp", NS):
            shapes[wsp.find("wps:cNvPr", NS).get("id")] = wsp
        for wsp in group.findall("wps:wsp", NS):
            links = wsp.find("wps:cNvCnPr", NS)
            if links is None:
                continue
            (x, y, cx, cy), flip_h, flip_v = frame(wsp)
            begin = (x + cx if flip_h else x, y + cy if flip_v else y)
            end = (x if flip_h else x + cx, y if flip_v else y + cy)
            ends = []
            for point, tag in ((begin, "a:stCxn"), (end, "a:endCxn")):
                link = links.find(tag, NS)
                assert link is not None, "a connector end is not attached"
                target = shapes[link.get("id")]
                (tx, ty, tw, th), _, _ = frame(target)
                preset = target.find("wps:spPr/a:prstGeom", NS).get("prst")
                sx, sy = sites(preset, tw, th)[int(link.get("idx"))]
                assert abs(tx + sx - point[0]) < 0.05 and abs(ty + sy - point[1]) < 0.05, \
                    (tag, point, (tx + sx, ty + sy), preset)
                ends.append("%s@%d" % (text(target), int(link.get("idx")) + 1))
            print(" -> ".join(ends))
            count += 1
    assert count > 0, "no connectors"


if __name__ == "__main__":
    main(sys.argv[1])
