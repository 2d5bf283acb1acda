#pragma once

#include <QRect>
#include <QSize>

namespace rlx {

/// Where the parts of the converter page lie.
struct ConverterLayout {
    QRect panel;  ///< around all of them
    QRect category;
    QRect fromCaption;
    QRect from;
    QRect value;
    QRect swap;
    QRect toCaption;
    QRect to;
    QRect result;
    QRect copy;
    QRect rule;      ///< the line between the two units
    QRect buttons;   ///< for three of the same width
    int font = 0;    ///< pixels, of captions, lists and buttons
    int digits = 0;  ///< pixels, of value and result
};

/// A high page has value and result below their units, a low one beside each other. Nothing overlaps and nothing is cut
/// off from 190x150 upward.
ConverterLayout LayOutConverter(const QSize& page);

}  // namespace rlx
