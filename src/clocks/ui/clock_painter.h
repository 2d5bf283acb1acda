#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

#include "clocks/clock_face.h"

namespace rlx {

/// The colours of one kind of clock, the home clock or the others.
struct ClockColours {
    QColor digital;
    QColor date;
    QColor city;
    QColor second;
    QColor hands;
    QColor face;  ///< ground of the face by day; by night ground and hands change places
};

/// What one clock shows, as texts.
struct ClockTexts {
    QString city;
    QString time;
    QString half;  ///< AM or PM, or empty
    QString date;
    QString note;       ///< day and distance as seen from home; empty for home itself
    QString shortNote;  ///< the distance alone, for small clocks
};

/// Draws the face of an analog clock without its hands, day or night told by its ground, into the largest circle within
/// `area`.
void PaintClockFace(QPainter& painter, const QRectF& area, bool day, const ClockColours& colours);

/// Draws the hands over the face of the same area.
void PaintClockHands(QPainter& painter, const QRectF& area, const ClockHands& hands, bool day,
                     const ClockColours& colours);

/// Draws the texts of a clock into `area`, each line as large as fits. `alignment` is left or centred.
void PaintClockTexts(QPainter& painter, const QRectF& area, const ClockTexts& texts, const ClockColours& colours,
                     Qt::Alignment alignment);

}  // namespace rlx
