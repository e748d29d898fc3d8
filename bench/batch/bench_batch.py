#!/usr/bin/env python3
"""Documents per second of a tab-0 batch run (blank lines, headers and
footers, links in text and in shapes, keywords of the properties) over 500
worksheet-sized documents built from the real corpus: lumenpad headless
against a python-docx script making the same edits, in the same run.

usage: bench_batch [LUMENPAD] (the build's lumenpad by default)"""
import os
import shutil
import subprocess
import sys
import tempfile
import time

HERE = os.path.dirname(os.path.abspath(__file__))
LUMENPAD = sys.argv[1] if len(sys.argv) > 1 else os.path.join(HERE, '../../src/app/lumenpad')
CORPUS = os.environ.get('LP_CORPUS', os.path.join(HERE, '@CORPUS@'))
PYTHON = '/usr/bin/python3'  # Debian's, with python3-docx
COUNT = int(os.environ.get('COUNT', '500'))
KEYWORDS = ['XX中学', '张老师']

PYTHON_DOCX_EDITS = r'''
import os, sys
import docx
from docx.oxml.ns import qn

W_P, W_T, W_R = qn('w:p'), qn('w:t'), qn('w:r')
KEEP_IN_RUN = {qn('w:rPr'), qn('w:lastRenderedPageBreak')}

def blank(p):
    for c in p:
        if c.tag == qn('w:pPr'):
            if c.find(qn('w:sectPr')) is not None:
                return False
        elif c.tag == qn('w:proofErr'):
            continue
        elif c.tag == W_R:
            for k in c:
                if k.tag in KEEP_IN_RUN:
                    continue
                if k.tag != W_T or (k.text or '').strip(' \u3000'):
                    return False
        else:
            return False
    return True

def edit(path, keywords):
    d = docx.Document(path)
    root = d.element
    for p in list(root.iter(W_P)):
        nxt = p.getnext()
        later = any(s.tag == W_P for s in p.itersiblings())
        prev = p.getprevious()
        if blank(p) and later and not (prev is not None and nxt is not None and
                                       prev.tag == qn('w:tbl') and nxt.tag == qn('w:tbl')):
            p.getparent().remove(p)
    for ref in list(root.iter(qn('w:headerReference'), qn('w:footerReference'))):
        ref.getparent().remove(ref)
    for link in list(root.iter(qn('w:hyperlink'))):
        parent = link.getparent()
        for child in list(link):
            link.addprevious(child)
        parent.remove(link)
    for click in list(root.iter('{http://schemas.openxmlformats.org/drawingml/2006/main}hlinkClick')):
        click.getparent().remove(click)
    cp = d.core_properties
    for name in ('title', 'subject', 'author', 'keywords', 'comments', 'last_modified_by', 'category'):
        value = getattr(cp, name) or ''
        for k in keywords:
            value = value.replace(k, '')
        if value != (getattr(cp, name) or ''):
            setattr(cp, name, value)
    d.save(path)

folder, keywords = sys.argv[1], sys.argv[2].split(',')
for r, _, files in os.walk(folder):
    for f in sorted(files):
        if f.endswith('.docx'):
            edit(os.path.join(r, f), keywords)
'''


def worksheet_sized(corpus):
    """Corpus documents of a worksheet's size that python-docx can open."""
    out = []
    for sub in ('powertools', 'poi'):
        folder = os.path.join(corpus, 'docx', sub)
        for f in sorted(os.listdir(folder)):
            path = os.path.join(folder, f)
            if f.endswith('.docx') and 8_000 < os.path.getsize(path) < 120_000:
                out.append(path)
    check = subprocess.run([PYTHON, '-c', 'import sys, docx\nfor p in sys.argv[1:]:\n'
                            '  try: docx.Document(p); print(p)\n  except Exception: pass', *out],
                           capture_output=True, text=True)
    return check.stdout.split()


def build(folder, sources):
    os.makedirs(folder)
    for i in range(COUNT):
        shutil.copy(sources[i % len(sources)], os.path.join(folder, f'{i:03d}.docx'))


def timed(command):
    start = time.monotonic()
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    return time.monotonic() - start


def main():
    sources = worksheet_sized(CORPUS)
    work = tempfile.mkdtemp(prefix='lp_bench_batch_')
    try:
        ours, theirs = os.path.join(work, 'lumenpad'), os.path.join(work, 'python-docx')
        build(ours, sources)
        build(theirs, sources)
        env_doc = os.path.join(work, 'active.docx')
        t_ours = timed([LUMENPAD, 'bat', '--doc', env_doc, '--config', os.path.join(work, 'c.db'),
                        '--set', f'txtFolder={ours}', '--set', 'txtFile=docx',
                        '--set', 'chkBlankLine=1', '--answer', 'yes', '--set', 'chkPageHeader=1',
                        '--set', 'chkLinkInShape=1', '--set', 'chkLinkInTxt=1',
                        '--set', 'chkFileInfo=1', '--set', 'txtFileInfo=' + ','.join(KEYWORDS),
                        '--click', 'cmdOK'])
        script = os.path.join(work, 'edits.py')
        with open(script, 'w') as f:
            f.write(PYTHON_DOCX_EDITS)
        t_theirs = timed([PYTHON, script, theirs, ','.join(KEYWORDS)])
    finally:
        shutil.rmtree(work, ignore_errors=True)
    ours_rate, theirs_rate = COUNT / t_ours, COUNT / t_theirs
    print(f'batch: {COUNT} documents ({len(sources)} distinct corpus files), tab-0 clean-up; '
          f'lumenpad {ours_rate:.1f} docs/s ({t_ours:.2f} s), python-docx {theirs_rate:.1f} docs/s '
          f'({t_theirs:.2f} s); ratio {ours_rate / theirs_rate:.1f}x (goal >= 10x) on {os.cpu_count()} cores')


if __name__ == '__main__':
    os.environ.setdefault('QT_QPA_PLATFORM', 'offscreen')
    main()
