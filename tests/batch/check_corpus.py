#!/usr/bin/env python3
"""Runs each batch operation over a copy of the real .docx corpus and checks
the result by reading the XML itself: the intended change is there, nothing
else changed, and a sample opens in LibreOffice.

usage: check_corpus.py BATCH_TOOL CORPUS_DIR [--soffice N | --soffice-all]

--soffice N opens N of the backed-up results in LibreOffice; --soffice-all runs
every operation in turn over one copy and opens every document of it.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import zipfile
import xml.etree.ElementTree as ET

W = '{http://schemas.openxmlformats.org/wordprocessingml/2006/main}'
R = '{http://schemas.openxmlformats.org/officeDocument/2006/relationships}'
A = '{http://schemas.openxmlformats.org/drawingml/2006/main}'
WP = '{http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing}'
PIC = '{http://schemas.openxmlformats.org/drawingml/2006/picture}'
CORE = ['{http://purl.org/dc/elements/1.1/}title', '{http://purl.org/dc/elements/1.1/}subject',
        '{http://purl.org/dc/elements/1.1/}creator',
        '{http://schemas.openxmlformats.org/package/2006/metadata/core-properties}keywords',
        '{http://purl.org/dc/elements/1.1/}description',
        '{http://schemas.openxmlformats.org/package/2006/metadata/core-properties}lastModifiedBy',
        '{http://schemas.openxmlformats.org/package/2006/metadata/core-properties}category',
        '{http://schemas.openxmlformats.org/package/2006/metadata/core-properties}contentStatus']

failures = []


def fail(name, why):
    failures.append(f'{name}: {why}')


def parts(path):
    with zipfile.ZipFile(path) as z:
        return {n: z.read(n) for n in z.namelist()}


def main_part(p):
    rels = ET.fromstring(p['_rels/.rels'])
    for r in rels:
        if r.get('Type', '').endswith('/officeDocument'):
            return r.get('Target').lstrip('/')
    return 'word/document.xml'


def story_parts(p, main):
    """document.xml and the header, footer and notes parts it names."""
    folder = main.rsplit('/', 1)[0]
    rels = ET.fromstring(p[f'{folder}/_rels/{main.rsplit("/", 1)[1]}.rels'])
    out = [main]
    for r in rels:
        kind = r.get('Type', '').rsplit('/', 1)[-1]
        if kind in ('header', 'footer', 'footnotes', 'endnotes') and r.get('TargetMode') != 'External':
            t = r.get('Target')
            out.append(t.lstrip('/') if t.startswith('/') else f'{folder}/{t}')
    return [x for x in out if x in p]


def paragraph_text(p):
    """The paragraph's text with a stop for anything that is not text; text
    boxes inside it are left to their own paragraphs."""
    out = []

    def walk(e):
        for c in e:
            if c.tag in (W + 'pPr', W + 'rPr'):
                continue
            if c.tag == W + 't':
                out.append(c.text or '')
            elif c.tag == W + 'txbxContent' or len(c) == 0 or c.tag in (W + 'instrText', W + 'delText'):
                out.append('\x01')
            else:
                walk(c)
    walk(p)
    return re.sub('\x01+', '\x01', ''.join(out))


def texts(xml):
    return [paragraph_text(p) for p in ET.fromstring(xml).iter(W + 'p')]


def visible_text(xml):
    """All text of w:t elements, in order."""
    return ''.join(t.text or '' for t in ET.fromstring(xml).iter(W + 't'))


def blank(p):
    for c in p:
        if c.tag == W + 'pPr':
            if c.find(W + 'sectPr') is not None:
                return False
        elif c.tag == W + 'proofErr':
            continue
        elif c.tag == W + 'r':
            for k in c:
                if k.tag in (W + 'rPr', W + 'lastRenderedPageBreak'):
                    continue
                if k.tag != W + 't' or (k.text or '').strip(' \u3000'):
                    return False
        else:
            return False
    return True


def deletable_blanks(xml):
    root = ET.fromstring(xml)
    count = 0
    for parent in root.iter():
        kids = [k for k in parent]
        for i, k in enumerate(kids):
            if k.tag != W + 'p' or not blank(k):
                continue
            if not any(x.tag == W + 'p' for x in kids[i + 1:]):
                continue
            if 0 < i < len(kids) - 1 and kids[i - 1].tag == W + 'tbl' and kids[i + 1].tag == W + 'tbl':
                continue
            count += 1
    return count


def others_same(name, before, after, allowed):
    if set(before) != set(after):
        fail(name, 'the set of parts changed')
    for n in before:
        if n not in allowed and before[n] != after.get(n):
            fail(name, f'part {n} changed')


def check_blank(name, b, a):
    m = main_part(b)
    others_same(name, b, a, {m})
    if deletable_blanks(a[m]):
        fail(name, 'a deletable blank paragraph is left')
    kept = lambda xml: [t for t, p in zip(texts(xml), ET.fromstring(xml).iter(W + 'p')) if not blank(p)]
    if kept(b[m]) != kept(a[m]):
        fail(name, 'the text of a non-blank paragraph changed')


def check_headers(name, b, a):
    m = main_part(b)
    others_same(name, b, a, {m})
    root = ET.fromstring(a[m])
    if root.findall(f'.//{W}headerReference') or root.findall(f'.//{W}footerReference'):
        fail(name, 'a header or footer is still referenced')
    if visible_text(b[m]) != visible_text(a[m]):
        fail(name, 'the body text changed')


def check_text_links(name, b, a):
    m = main_part(b)
    stories = story_parts(b, m)
    others_same(name, b, a, set(stories))
    for s in stories:
        root = ET.fromstring(a[s])
        if root.findall(f'.//{W}hyperlink'):
            fail(name, f'{s}: a w:hyperlink is left')
        instr = ''.join(t.text or '' for t in root.iter(W + 'instrText'))
        simple = [f.get(W + 'instr', '') for f in root.iter(W + 'fldSimple')]
        if re.search(r'^\s*HYPERLINK', instr, re.M) or any(re.match(r'\s*HYPERLINK', x) for x in simple):
            fail(name, f'{s}: a HYPERLINK field is left')
        if visible_text(b[s]) != visible_text(a[s]):
            fail(name, f'{s}: the text changed')


def check_shape_links(name, b, a):
    m = main_part(b)
    stories = story_parts(b, m)
    others_same(name, b, a, set(stories))
    for s in stories:
        if b'hlinkClick' in a[s] or b'hlinkHover' in a[s]:
            fail(name, f'{s}: a shape link is left')


def core_values(p):
    if 'docProps/core.xml' not in p:
        return None
    root = ET.fromstring(p['docProps/core.xml'])
    return [(root.find(t).text or '') if root.find(t) is not None else None for t in CORE]


def check_info(name, b, a, edit):
    others_same(name, b, a, {'docProps/core.xml'})
    before, after = core_values(b), core_values(a)
    if before is None:
        return
    want = [edit(v) if v is not None else None for v in before]
    if [x or '' for x in want] != [x or '' for x in after]:
        fail(name, f'properties {after} are not {want}')


def check_replace(name, b, a, old, new):
    m = main_part(b)
    stories = story_parts(b, m)
    others_same(name, b, a, set(stories))
    for s in stories:
        want = [t.replace(old, new) for t in texts(b[s])]
        if want != texts(a[s]):
            fail(name, f'{s}: the text is not replaced as expected')


def check_pictures(name, b, a, factor):
    m = main_part(b)
    others_same(name, b, a, {m})

    def extents(xml):
        out = []
        for holder in ET.fromstring(xml).iter():
            if holder.tag in (WP + 'inline', WP + 'anchor') and holder.find(f'.//{PIC}pic') is not None:
                e = holder.find(WP + 'extent')
                out.append((int(e.get('cx')), int(e.get('cy'))))
        return out
    want = [(int(x * factor + 0.5), int(y * factor + 0.5)) for x, y in extents(b[m])]
    if want != extents(a[m]):
        fail(name, 'picture extents are not scaled')


def check_backup(name, original, folder):
    base = os.path.basename(name)
    backups = [f for f in os.listdir(folder) if f.startswith(base + '_bak ') and f.endswith('.doc')]
    if len(backups) != 1:
        fail(name, f'{len(backups)} backups')
        return
    with open(os.path.join(folder, backups[0]), 'rb') as f1, open(original, 'rb') as f2:
        if f1.read() != f2.read():
            fail(name, 'the backup differs from the untouched file')


def run(tool, corpus, work, op, *args):
    folder = os.path.join(work, op)
    shutil.copytree(corpus, folder)
    out = subprocess.run([tool, op, folder, *args], capture_output=True, text=True)
    if out.returncode != 0:
        fail(op, 'the tool failed: ' + out.stdout[-500:] + out.stderr[-500:])
    return folder


def corpus_files(corpus):
    for sub in sorted(os.listdir(corpus)):
        for f in sorted(os.listdir(os.path.join(corpus, sub))):
            if f.endswith('.docx'):
                yield os.path.join(sub, f)


def opens_in_libreoffice(folder, files, work):
    out = os.path.join(work, 'pdf')
    os.makedirs(out, exist_ok=True)
    paths = [os.path.join(folder, f) for f in files]
    subprocess.run(['soffice', f'-env:UserInstallation=file://{work}/profile', '--headless',
                    '--convert-to', 'pdf', '--outdir', out, *paths], capture_output=True, timeout=1100)
    for f in files:
        pdf = os.path.join(out, os.path.splitext(os.path.basename(f))[0] + '.pdf')
        if not os.path.exists(pdf) or os.path.getsize(pdf) == 0:
            fail(f, 'LibreOffice did not open the processed file')


def every_operation(tool, src, work, checks):
    """One copy of the corpus that every operation ran over in turn."""
    folder = os.path.join(work, 'all')
    shutil.copytree(src, folder)
    for op, args, _ in checks:
        subprocess.run([tool, op, folder, *args], capture_output=True)
    return folder


def main():
    tool, corpus = sys.argv[1], sys.argv[2]
    sample = int(sys.argv[sys.argv.index('--soffice') + 1]) if '--soffice' in sys.argv else 0
    corpus_copy = tempfile.mkdtemp(prefix='lp_batch_corpus_')
    work = tempfile.mkdtemp(prefix='lp_batch_work_')
    try:
        src = os.path.join(corpus_copy, 'docx')
        os.makedirs(src)
        for sub in ('powertools', 'poi'):
            shutil.copytree(os.path.join(corpus, 'docx', sub), os.path.join(src, sub))
        files = list(corpus_files(src))
        originals = {f: parts(os.path.join(src, f)) for f in files}
        checks = [
            ('blank', (), lambda n, b, a: check_blank(n, b, a)),
            ('headers', (), check_headers),
            ('textlinks', (), check_text_links),
            ('shapelinks', (), check_shape_links),
            ('delinfo', ('o，e',), lambda n, b, a: check_info(n, b, a, lambda v: v.replace('o', '').replace('e', ''))),
            ('changeinfo', ('a', '甲'), lambda n, b, a: check_info(n, b, a, lambda v: v.replace('a', '甲'))),
            ('replace', ('e', 'ε'), lambda n, b, a: check_replace(n, b, a, 'e', 'ε')),
            ('pictures', ('0.5',), lambda n, b, a: check_pictures(n, b, a, 0.5)),
        ]
        for op, args, check in checks:
            folder = run(tool, src, work, op, *args)
            for f in files:
                check(f'{op} {f}', originals[f], parts(os.path.join(folder, f)))
        folder = run(tool, src, work, 'backup')
        for f in files:
            check_backup(f, os.path.join(src, f), os.path.dirname(os.path.join(folder, f)))
        if '--soffice-all' in sys.argv:
            opens_in_libreoffice(every_operation(tool, src, work, checks), files, work)
        elif sample:
            opens_in_libreoffice(folder, files[::max(1, len(files) // sample)][:sample], work)
        print(f'{len(files)} documents, {len(checks) + 1} operations')
    finally:
        shutil.rmtree(corpus_copy, ignore_errors=True)
        shutil.rmtree(work, ignore_errors=True)
    for line in failures[:60]:
        print(line)
    print(f'{len(failures)} failures')
    return 1 if failures else 0


if __name__ == '__main__':
    sys.exit(main())
