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

    bool operator==(const ClockTexts&) const = default;
};

/// Draws the face of an analog clock without its hands, day or night told by its ground, into the largest circle within
/// `area`.
void PaintClockFace(QPainter& painter, const QRectF& area, bool day, const ClockColours& colours);

/// Draws the hands over the face of the same area.
void PaintClockHands(QPainter& painter, const QRectF& area, const ClockHands& hands, bool day,
                     const ClockColours& colours);

/// Draws what a clock says from minute to minute into `area`: city, date and note, each line as large as fits. The room
/// between them is for the time. `alignment` is left or centred.
void PaintClockNotes(QPainter& painter, const QRectF& area, const ClockTexts& texts, const ClockColours& colours,
                     Qt::Alignment alignment);

/// Draws the time into the room that the notes of the same area leave for it.
void PaintClockTime(QPainter& painter, const QRectF& area, const ClockTexts& texts, const QColor& colour,
                    Qt::Alignment alignment);

}  // namespace rlx
