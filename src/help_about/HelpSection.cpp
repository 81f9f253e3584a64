// SPDX-License-Identifier: MIT
#include "help_about/HelpSection.h"

#include "style/Paragraph.h"
#include "style/Stack.h"
#include "style/SymbolView.h"
#include "style/TextLabel.h"

namespace velto {

namespace {
constexpr int iconWidth = 32;
}

HelpSection::HelpSection(const QString& icon, const QString& title, const QString& description)
{
    auto* symbol = new SymbolView(icon, TextStyle::title2, ColorName::accent);
    symbol->setFixedWidth(iconWidth);
    auto* heading = new TextLabel(title, TextStyle::headline);
    auto* text = new Paragraph(description, TextStyle::body, ColorName::secondaryLabel);

    setLayout(row({.spacing = 12, .alignment = Qt::AlignTop}, symbol,
        filling(column({.spacing = 4, .alignment = Qt::AlignLeading}, heading, filling(text)))));
}

} // namespace velto
