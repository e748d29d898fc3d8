#!/usr/bin/env python3
"""One landscape page with a document's first page before and after a batch
run, side by side under their captions.

usage: before_after_page.py BEFORE.png AFTER.png OUT.docx"""
import sys

import docx
from docx.enum.section import WD_ORIENT
from docx.enum.text import WD_ALIGN_PARAGRAPH
from docx.shared import Cm, Pt


def main():
    before, after, out = sys.argv[1:4]
    d = docx.Document()
    section = d.sections[0]
    section.orientation = WD_ORIENT.LANDSCAPE
    section.page_width, section.page_height = Cm(29.7), Cm(21.0)
    for side in ('left_margin', 'right_margin', 'top_margin', 'bottom_margin'):
        setattr(section, side, Cm(1.2))
    title = d.add_paragraph()
    title.alignment = WD_ALIGN_PARAGRAPH.CENTER
    run = title.add_run('批量处理：一份收集来的练习卷，处理前与处理后')
    run.font.size = Pt(14)
    run.bold = True
    table = d.add_table(rows=1, cols=2)
    for col, (caption, picture) in enumerate((('处理前', before), ('处理后', after))):
        head = table.cell(0, col).paragraphs[0]
        head.alignment = WD_ALIGN_PARAGRAPH.CENTER
        head.add_run(caption).bold = True
        body = table.cell(0, col).add_paragraph()
        body.alignment = WD_ALIGN_PARAGRAPH.CENTER
        body.add_run().add_picture(picture, height=Cm(15.5))
    d.save(out)


if __name__ == '__main__':
    main()
