#!/usr/bin/env python3
"""The table of ARCHITECTURE.md: each Word API member the COM back end
implements, the dispatch names it calls, and whether the Word double of the
Wine tests checks them (answers the name, checks the arguments' number and
types, records the call). Run from the repository root: without arguments it
fails when ARCHITECTURE.md's table is stale, with --update it rewrites it."""
import glob
import re
import sys

COM = "src/word/com"
DOUBLE = "tests/word_com/double"

# Which member tables of the double stand for which object of the back end.
TABLES = {
    "ComFont": ["FontObj"], "ComParagraphFormat": ["ParagraphObj"],
    "ComReplacement": ["ReplacementObj"], "ComFind": ["FindObj"],
    "ComField": ["FieldObj"], "ComFields": ["FieldsObj"], "ComCharacters": ["CharactersObj"],
    "ComInlineShape": [], "ComInlineShapes": ["InlineShapes"],
    "RangeImpl": ["RangeMembers"], "ComSelection": ["SelectionMembers", "RangeMembers"],
    "ComColorFormat": ["ColorMembers"], "ComLineFormat": ["LineMembers"],
    "ComFillFormat": ["FillMembers"], "ComTextFrame": ["TextFrameMembers"],
    "ComWrapFormat": ["WrapMembers"], "ComConnectorFormat": ["ConnectorMembers"],
    "ShapeImpl": ["ShapeMembers"],
    "ComShapeRange": ["ShapeRangeMembers", "ShapeMembers"], "ComFreeformBuilder": ["FreeformObj"],
    "ComShapes": ["ShapesObj"], "ComPageSetup": ["PageSetupMembers"],
    "ComBookmarks": ["BookmarksObj", "BookmarkObj"], "ComTemplate": ["AttachedTemplate"],
    "ComDocument": ["DocumentObj", "BuiltInDocumentProperties"], "ComDocuments": ["Documents"],
    "ComOptions": ["OptionsMembers"], "ComAutoCorrect": ["OptionsMembers"],
    "ComAddIns": ["AddInsMembers"], "ComAutoTextEntry": ["AutoTextEntryMembers"],
    "ComAutoTextEntries": ["AutoTextEntriesMembers"],
    "ComNormalTemplate": ["NormalTemplateMembers"],
    "ComCommandBars": ["CommandBarsMembers", "ControlsMembers", "ControlMembers"],
    "ComKeyBindings": ["KeyBindingsMembers"], "ComApplication": ["ApplicationObj"],
}
API_OF = {"RangeImpl": "Range", "ShapeImpl": "Shape"}
NAME = re.compile(r'L"(\w+)"')


def double_names():
    """Names each table of the double answers, by the table's own name or the
    name of the member that makes it."""
    text = "".join(open(f, encoding="utf-8").read() for f in sorted(glob.glob(DOUBLE + "/*.cpp")))
    tables = {}
    for m in re.finditer(r'(?:(\w+)::Members\(\) const(?: override)? \{)|(?:std::vector<Member>&? (\w+)\(\) \{)|(?:\.(?:Read|Prop)\(\s*L"(\w+)")', text):
        key = m.group(1) or m.group(2) or m.group(3)
        body = text[m.end():]
        depth, end = 1, 0
        for i, ch in enumerate(body):
            depth += ch == "{"
            depth -= ch == "}"
            if depth == 0:
                end = i
                break
        rows = re.findall(r'\.(?:Method|Read|Prop|Keep)\(\s*L"(\w+)"', body[:end])
        tables.setdefault(key, set()).update(rows)
    for m in re.finditer(r'class (\w+) : public Object \{(.*?)\n\};', text, re.S):
        rows = re.findall(r'\.(?:Method|Read|Prop|Keep)\(\s*L"(\w+)"', m.group(2))
        tables.setdefault(m.group(1), set()).update(rows)
    return tables


def com_members():
    """(class, member, [(kind, name)]) for every override of the back end."""
    out = []
    paths = sorted(glob.glob(COM + "/*.h")) + sorted(glob.glob(COM + "/*.cpp"))
    fields = {}
    for path in paths:
        fields.update(re.findall(r'(\w+_)\(Member\(L"(\w+)"', open(path, encoding="utf-8").read()))
    for path in paths:
        text = open(path, encoding="utf-8").read()
        for cls in re.finditer(r'^(?:template <class Base>\n)?class (\w+) : public', text, re.M):
            body = text[cls.end():text.find("\n};", cls.end())]
            for m in re.finditer(r'(?:\n  (?:[\w:<>&*, ]+) )(\w+)\(([^)]*)\)( const)? override(.*?)(?=\n  \S|\Z)', body, re.S):
                out.append((cls.group(1), m.group(1), calls(m.group(4), fields)))
        for m in re.finditer(r'^[\w:<>&* ]+ (\w+)(?:<Base>)?::(\w+)\((.*?)\n\}', text, re.M | re.S):
            out.append((m.group(1), m.group(2), calls(m.group(3), fields)))
    return out


def calls(body, fields):
    found = [(k, n) for k, n in re.findall(r'(Get|Put|Call|Fixed|Object|Member|PutWith)\(L"(\w+)"', body)]
    for field in re.findall(r'return (\w+_);', body):
        if field in fields:
            found.append(("Member", fields[field]))
    return found


def table():
    tables = double_names()
    kinds = {"Get": "get", "Put": "put", "PutWith": "put", "Call": "call", "Fixed": "object",
             "Object": "object", "Member": "object"}
    lines = ["| API member | COM dispatch names | double checks it |", "| --- | --- | --- |"]
    merged = {}
    for cls, member, found in com_members():
        merged.setdefault((cls, member), []).extend(f for f in found if f not in merged.get((cls, member), []))
    for (cls, member), found in merged.items():
        if cls not in TABLES:
            continue
        answered = set().union(*(tables.get(t, set()) for t in TABLES[cls])) if TABLES[cls] else set()
        api = API_OF.get(cls, cls[3:] if cls.startswith("Com") else cls)
        names = " ".join(f"{n} ({kinds[k]})" for k, n in found) or "-"
        checked = all(n in answered for _, n in found) and found
        lines.append(f"| {api}.{member} | {names} | {'yes' if checked else 'no'} |")
    return "\n".join(lines) + "\n"


def main():
    begin, end = "<!-- api-table -->\n", "<!-- /api-table -->"
    doc = open("ARCHITECTURE.md", encoding="utf-8").read()
    head, rest = doc.split(begin, 1)
    old, tail = rest.split(end, 1)
    new = table()
    if "--update" in sys.argv:
        open("ARCHITECTURE.md", "w", encoding="utf-8").write(head + begin + new + end + tail)
    elif old != new:
        sys.exit("ARCHITECTURE.md: the Word API table is stale; run "
                 "python3 tests/word_com/tools/api_table.py --update")


main()
