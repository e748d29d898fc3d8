#include "word/docx/new_document.h"

namespace word::docx {
namespace {

const char* const kDecl = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
                          "\r\n";

const char* const kContentTypes =
    R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
    R"(<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>)"
    R"(<Default Extension="xml" ContentType="application/xml"/>)"
    R"(<Default Extension="png" ContentType="image/png"/>)"
    R"(<Default Extension="jpeg" ContentType="image/jpeg"/>)"
    R"(<Override PartName="/word/document.xml" ContentType="application/vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml"/>)"
    R"(<Override PartName="/word/styles.xml" ContentType="application/vnd.openxmlformats-officedocument.wordprocessingml.styles+xml"/>)"
    R"(<Override PartName="/word/settings.xml" ContentType="application/vnd.openxmlformats-officedocument.wordprocessingml.settings+xml"/>)"
    R"(<Override PartName="/docProps/core.xml" ContentType="application/vnd.openxmlformats-package.core-properties+xml"/>)"
    R"(<Override PartName="/docProps/app.xml" ContentType="application/vnd.openxmlformats-officedocument.extended-properties+xml"/>)"
    R"(</Types>)";

const char* const kPackageRels =
    R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
    R"(<Relationship Id="rId3" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/extended-properties" Target="docProps/app.xml"/>)"
    R"(<Relationship Id="rId2" Type="http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties" Target="docProps/core.xml"/>)"
    R"(<Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument" Target="word/document.xml"/>)"
    R"(</Relationships>)";

const char* const kDocumentRels =
    R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
    R"(<Relationship Id="rId2" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/settings" Target="settings.xml"/>)"
    R"(<Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/styles" Target="styles.xml"/>)"
    R"(</Relationships>)";

// The namespaces a Word document declares, so that shapes, text boxes and
// equations can be added without touching the root element.
const char* const kDocument =
    R"(<w:document xmlns:wpc="http://schemas.microsoft.com/office/word/2010/wordprocessingCanvas" )"
    R"(xmlns:mc="http://schemas.openxmlformats.org/markup-compatibility/2006" )"
    R"(xmlns:o="urn:schemas-microsoft-com:office:office" )"
    R"(xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships" )"
    R"(xmlns:m="http://schemas.openxmlformats.org/officeDocument/2006/math" )"
    R"(xmlns:v="urn:schemas-microsoft-com:vml" )"
    R"(xmlns:wp14="http://schemas.microsoft.com/office/word/2010/wordprocessingDrawing" )"
    R"(xmlns:wp="http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing" )"
    R"(xmlns:w10="urn:schemas-microsoft-com:office:word" )"
    R"(xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main" )"
    R"(xmlns:w14="http://schemas.microsoft.com/office/word/2010/wordml" )"
    R"(xmlns:wpg="http://schemas.microsoft.com/office/word/2010/wordprocessingGroup" )"
    R"(xmlns:wps="http://schemas.microsoft.com/office/word/2010/wordprocessingShape" )"
    R"(xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" )"
    R"(xmlns:pic="http://schemas.openxmlformats.org/drawingml/2006/picture" )"
    R"(mc:Ignorable="w14 wp14">)"
    R"(<w:body><w:p/>)"
    R"(<w:sectPr><w:pgSz w:w="11906" w:h="16838"/>)"
    R"(<w:pgMar w:top="1440" w:right="1800" w:bottom="1440" w:left="1800" w:header="851" w:footer="992" w:gutter="0"/>)"
    R"(<w:cols w:space="425"/><w:docGrid w:type="lines" w:linePitch="312"/></w:sectPr>)"
    R"(</w:body></w:document>)";

const char* const kStyles =
    R"(<w:styles xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main">)"
    R"(<w:docDefaults><w:rPrDefault><w:rPr>)"
    R"(<w:rFonts w:ascii="Times New Roman" w:eastAsia="宋体" w:hAnsi="Times New Roman" w:cs="Times New Roman"/>)"
    R"(<w:kern w:val="2"/><w:sz w:val="21"/><w:szCs w:val="24"/>)"
    R"(<w:lang w:val="en-US" w:eastAsia="zh-CN" w:bidi="ar-SA"/>)"
    R"(</w:rPr></w:rPrDefault><w:pPrDefault/></w:docDefaults>)"
    R"(<w:style w:type="paragraph" w:default="1" w:styleId="Normal"><w:name w:val="Normal"/><w:qFormat/>)"
    R"(<w:pPr><w:widowControl w:val="0"/><w:jc w:val="both"/></w:pPr></w:style>)"
    R"(<w:style w:type="character" w:default="1" w:styleId="DefaultParagraphFont">)"
    R"(<w:name w:val="Default Paragraph Font"/><w:uiPriority w:val="1"/><w:semiHidden/><w:unhideWhenUsed/></w:style>)"
    R"(<w:style w:type="table" w:default="1" w:styleId="TableNormal"><w:name w:val="Normal Table"/>)"
    R"(<w:uiPriority w:val="99"/><w:semiHidden/><w:unhideWhenUsed/><w:tblPr><w:tblInd w:w="0" w:type="dxa"/>)"
    R"(<w:tblCellMar><w:top w:w="0" w:type="dxa"/><w:left w:w="108" w:type="dxa"/>)"
    R"(<w:bottom w:w="0" w:type="dxa"/><w:right w:w="108" w:type="dxa"/></w:tblCellMar></w:tblPr></w:style>)"
    R"(<w:style w:type="numbering" w:default="1" w:styleId="NoList"><w:name w:val="No List"/>)"
    R"(<w:uiPriority w:val="99"/><w:semiHidden/><w:unhideWhenUsed/></w:style>)"
    R"(</w:styles>)";

const char* const kSettings =
    R"(<w:settings xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main">)"
    R"(<w:zoom w:percent="100"/><w:bordersDoNotSurroundHeader/><w:bordersDoNotSurroundFooter/>)"
    R"(<w:defaultTabStop w:val="420"/><w:drawingGridVerticalSpacing w:val="156"/>)"
    R"(<w:displayHorizontalDrawingGridEvery w:val="0"/><w:displayVerticalDrawingGridEvery w:val="2"/>)"
    R"(<w:characterSpacingControl w:val="compressPunctuation"/><w:compat><w:spaceForUL/>)"
    R"(<w:balanceSingleByteDoubleByteWidth/><w:doNotLeaveBackslashAlone/><w:ulTrailSpace/>)"
    R"(<w:doNotExpandShiftReturn/><w:adjustLineHeightInTable/><w:useFELayout/></w:compat>)"
    R"(<w:themeFontLang w:val="en-US" w:eastAsia="zh-CN"/></w:settings>)";

const char* const kCore =
    R"(<cp:coreProperties xmlns:cp="http://schemas.openxmlformats.org/package/2006/metadata/core-properties" )"
    R"(xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:dcterms="http://purl.org/dc/terms/" )"
    R"(xmlns:dcmitype="http://purl.org/dc/dcmitype/" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">)"
    R"(<dc:title></dc:title><dc:creator></dc:creator></cp:coreProperties>)";

const char* const kApp =
    R"(<Properties xmlns="http://schemas.openxmlformats.org/officeDocument/2006/extended-properties">)"
    R"(<Template>Normal.dotm</Template><Pages>1</Pages></Properties>)";

}  // namespace

Package NewDocumentPackage() {
  Package p = Package::Empty();
  auto put = [&](const char* name, const char* body) { p.Write(name, std::string(kDecl) + body); };
  put("[Content_Types].xml", kContentTypes);
  put("_rels/.rels", kPackageRels);
  put("word/document.xml", kDocument);
  put("word/_rels/document.xml.rels", kDocumentRels);
  put("word/styles.xml", kStyles);
  put("word/settings.xml", kSettings);
  put("docProps/core.xml", kCore);
  put("docProps/app.xml", kApp);
  return p;
}

}  // namespace word::docx
