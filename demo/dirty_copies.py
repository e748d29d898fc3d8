#!/usr/bin/env python3
"""Makes copies of the worksheet as a school office collects them: another
school's header and footer, blank lines between the questions, a stray
hyperlink, the school's name in the author field and in the text.

usage: dirty_copies.py WORKSHEET FOLDER COUNT"""
import os
import sys

import docx
from docx.enum.style import WD_STYLE_TYPE
from docx.opc.constants import RELATIONSHIP_TYPE
from docx.shared import RGBColor
from docx.oxml import OxmlElement
from docx.oxml.ns import qn


def hyperlink_style(document):
    """Word's character style for links: blue and underlined."""
    if 'Hyperlink' in [s.name for s in document.styles]:
        return
    style = document.styles.add_style('Hyperlink', WD_STYLE_TYPE.CHARACTER)
    style.font.color.rgb = RGBColor(0x05, 0x63, 0xC1)
    style.font.underline = True


def add_hyperlink(paragraph, url, text):
    """A link as Word writes one: its run in the Hyperlink style."""
    hyperlink_style(paragraph.part.document)
    rid = paragraph.part.relate_to(url, RELATIONSHIP_TYPE.HYPERLINK, is_external=True)
    link = OxmlElement('w:hyperlink')
    link.set(qn('r:id'), rid)
    run = OxmlElement('w:r')
    props = OxmlElement('w:rPr')
    style = OxmlElement('w:rStyle')
    style.set(qn('w:val'), 'Hyperlink')
    props.append(style)
    run.append(props)
    t = OxmlElement('w:t')
    t.text = text
    run.append(t)
    link.append(run)
    paragraph._p.append(link)


def dirty(source, target, n):
    d = docx.Document(source)
    section = d.sections[0]
    section.header.paragraphs[0].text = '外校 XX 中学 内部资料 请勿外传'
    section.footer.paragraphs[0].text = '外校 XX 中学 教务处 印'
    body = list(d.paragraphs)
    for p in body[1:12]:
        p._p.addnext(OxmlElement('w:p'))
        p._p.addnext(OxmlElement('w:p'))
    first = body[0].insert_paragraph_before('XX 中学 2026 学年第一学期 第 %d 份 资料来源：' % n)
    add_hyperlink(first, 'http://www.example.com/xx-school', 'www.xx-school.example')
    d.core_properties.author = 'XX 中学 张老师'
    d.core_properties.title = 'XX 中学 数学练习'
    d.save(target)


def main():
    worksheet, folder, count = sys.argv[1], sys.argv[2], int(sys.argv[3])
    os.makedirs(folder, exist_ok=True)
    for n in range(1, count + 1):
        dirty(worksheet, os.path.join(folder, '练习%d_XX中学.docx' % n), n)


if __name__ == '__main__':
    main()
