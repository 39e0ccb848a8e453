// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PageSource.h"

#include <qpdf/QPDFAnnotationObjectHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include <array>
#include <string_view>

namespace printdialog {

namespace {

void copyKeys(QPDFObjectHandle from, QPDFObjectHandle to, std::initializer_list<const char *> keys)
{
    for (const char *key : keys) {
        if (QPDFObjectHandle value = from.getKey(key); !value.isNull())
            to.replaceKey(key, value);
    }
}

/// As it is printed, without what it does; null when it is not printed.
QPDFObjectHandle printedAnnotation(QPDFAnnotationObjectHelper annotation)
{
    QPDFObjectHandle printed = QPDFObjectHandle::newNull();
    const int flags = annotation.getFlags();
    if ((flags & an_print) == 0 || (flags & an_hidden) != 0)
        return printed;
    QPDFObjectHandle source = annotation.getObjectHandle();
    QPDFObjectHandle appearance = annotation.getAppearanceDictionary();
    if (appearance.isDictionary() && appearance.hasKey("/N")) {
        // A stamp is nothing but its appearance.
        printed = QPDFObjectHandle::parse("<< /Type /Annot /Subtype /Stamp >>");
        copyKeys(source, printed, {"/Rect", "/F", "/AS", "/OC", "/BM"});
        QPDFObjectHandle normal = QPDFObjectHandle::newDictionary();
        normal.replaceKey("/N", appearance.getKey("/N"));
        printed.replaceKey("/AP", normal);
        return printed;
    }
    constexpr std::array<std::string_view, 12> drawn = {"/Highlight", "/Underline", "/StrikeOut", "/Squiggly",
                                                        "/Ink",       "/Square",    "/Circle",    "/Line",
                                                        "/Polygon",   "/PolyLine",  "/FreeText",  "/Link"};
    const std::string kind = annotation.getSubtype();
    if (std::find(drawn.begin(), drawn.end(), kind) == drawn.end())
        return printed;
    printed = QPDFObjectHandle::newDictionary();
    copyKeys(source, printed,
             {"/Type",     "/Subtype", "/Rect", "/F",  "/OC",         "/BM",      "/Border", "/BS",
              "/BE",       "/C",       "/CA",   "/IC", "/QuadPoints", "/InkList", "/L",      "/LE",
              "/Vertices", "/RD",      "/DA",   "/DS", "/Q",          "/Contents"});
    return printed;
}

} // namespace

PageSource::PageSource(DocumentBytes bytes)
    : pdf_(openPdf(bytes))
    , pages_(pdf_->getAllPages())
{
}

QPDFObjectHandle PageSource::printedAnnotations(QPDFPageObjectHelper page)
{
    QPDFObjectHandle printed = QPDFObjectHandle::newArray();
    for (const QPDFAnnotationObjectHelper &annotation : page.getAnnotations()) {
        if (QPDFObjectHandle each = printedAnnotation(annotation); each.isDictionary())
            printed.appendItem(each);
    }
    return printed;
}

void PageSource::dropUnused(std::uint32_t number)
{
    QPDFPageObjectHelper page(pages_.at(number));
    QPDFObjectHandle resources = page.getAttribute("/Resources", false);
    if (!resources.isDictionary())
        return;
    QPDFObjectHandle pictures = resources.getKey("/XObject");
    if (pictures.isDictionary() && pictures.getKeys().size() > 1)
        page.removeUnreferencedResources();
}

QPDFObjectHandle PageSource::asPage(std::uint32_t number)
{
    QPDFPageObjectHelper page(pages_.at(number));
    const SeenBox seen = SeenBox::of(page);
    QPDFObjectHandle made = QPDFObjectHandle::parse("<< /Type /Page >>");
    copyKeys(page.getObjectHandle(), made, {"/Contents", "/Group"});
    made.replaceKey("/Resources", page.getAttribute("/Resources", false));
    made.replaceKey("/MediaBox", QPDFObjectHandle::newFromRectangle(seen.box));
    constexpr int quarter = 90; // degrees
    if (seen.quarterTurns != 0)
        made.replaceKey("/Rotate", QPDFObjectHandle::newInteger(quarter * seen.quarterTurns));
    if (QPDFObjectHandle annotations = printedAnnotations(page); annotations.getArrayNItems() > 0)
        made.replaceKey("/Annots", annotations);
    return pdf_->makeIndirectObject(made);
}

void PageSource::flattenFor(std::uint32_t page)
{
    if (isFlat_ || QPDFPageObjectHelper(pages_.at(page)).getAnnotations().empty())
        return;
    QPDFPageDocumentHelper(*pdf_).flattenAnnotations(an_print);
    isFlat_ = true;
}

QPDFObjectHandle PageSource::asForm(std::uint32_t number)
{
    QPDFObjectHandle &form = forms_[number];
    if (form.isInitialized())
        return form;
    QPDFPageObjectHelper page(pages_.at(number));
    QPDFObjectHandle content = page.getObjectHandle().getKey("/Contents");
    QPDFObjectHandle kept = QPDFObjectHandle::newDictionary();
    if (content.isStream()) {
        form = content.copyStream(); // packed as it is
        copyKeys(form.getDict(), kept, {"/Filter", "/DecodeParms"});
    } else {
        form = page.getFormXObjectForPage(false);
    }
    kept.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
    kept.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
    kept.replaceKey("/BBox", QPDFObjectHandle::newFromRectangle(seen(number).box));
    kept.replaceKey("/Resources", page.getAttribute("/Resources", false));
    copyKeys(page.getObjectHandle(), kept, {"/Group"});
    form.replaceDict(kept);
    return form;
}

} // namespace printdialog
