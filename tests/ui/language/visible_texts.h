#pragma once

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QLineEdit>
#include <QRegularExpression>
#include <algorithm>
#include <functional>

#include "support/painted_texts.h"

namespace rlx::test {

/// Reads every text that is seen in a window as a person would: by what is painted. The language in force puts each of
/// its texts into brackets, so what stands outside of brackets did not come from it, and a bracket that does not close
/// was cut off.
class CVisibleTexts {
public:
    /// `isData` tells whether a text of a widget is data and so rightly stands outside of brackets.
    using IsData = std::function<bool(const QWidget& widget, const QString& text)>;

    explicit CVisibleTexts(IsData isData) : m_isData(std::move(isData)) {}

    /// One line for each text that is in the wrong language, cut off, or hidden by another.
    QStringList FaultsOf(QWidget& window) {
        m_faults.clear();
        m_placed.clear();
        Visit(window, window);
        Overlaps();
        return m_faults;
    }

    int Seen() const { return m_seen; }

private:
    struct Placed {
        QString text;
        QString widget;
        QRectF rect;  // in the window
    };

    static QString NameOf(const QWidget& widget) {
        const QString name = widget.objectName();
        const QWidget* parent = widget.parentWidget();
        const bool viewport = name == "qt_scrollarea_viewport" && parent != nullptr;
        return viewport ? NameOf(*parent) : QString("%1(%2)").arg(widget.metaObject()->className(), name);
    }

    void Visit(QWidget& widget, QWidget& window) {
        Read(widget, window);
        for (QObject* each : widget.children()) {
            auto* child = qobject_cast<QWidget*>(each);
            if (child != nullptr && child->isVisible() && !child->isWindow()) Visit(*child, window);
        }
    }

    void Read(QWidget& widget, QWidget& window) {
        const auto texts = PaintedTexts(widget, {});
        QString outside;
        int open = 0;
        for (const PaintedText& text : texts) {
            if (text.text.trimmed().isEmpty()) continue;
            ++m_seen;
            outside += Outside(text.text, open) + " ";
            if (text.text.endsWith(QChar(0x2026)) && open > 0) {
                open = 0;
                const bool field = qobject_cast<QLineEdit*>(&widget) != nullptr;
                if (!field && !HasToolTip(widget, text)) Say(widget, "elided without a tool tip", text.text);
            }
            // A field scrolls, and names of data may run out of a map.
            const bool scrolls = qobject_cast<QLineEdit*>(&widget) != nullptr;
            if (!scrolls && text.text.contains(kFromModule)) Place(widget, window, text);
        }
        if (std::any_of(outside.begin(), outside.end(), [](QChar c) { return c.isLetter(); }) &&
            !m_isData(widget, outside.trimmed()))
            Say(widget, "not from the language module", outside.trimmed());
        ReadHidden(widget);
        Reach(widget, window);
    }

    /// What is not painted but shown in passing or read aloud.
    void ReadHidden(QWidget& widget) {
        for (const QString& text : {widget.toolTip(), widget.accessibleName(), widget.accessibleDescription()}) {
            int open = 0;
            const QString outside = Outside(text, open);
            if (std::any_of(outside.begin(), outside.end(), [](QChar c) { return c.isLetter(); }) &&
                !m_isData(widget, outside.trimmed()))
                Say(widget, "tool tip or name not from the language module", text);
        }
    }

    static QString Outside(const QString& text, int& open) {
        QString outside;
        for (const QChar c : text) {
            if (c == '[') ++open;
            if (open == 0) outside += c;
            if (c == ']' && open > 0) --open;
        }
        return outside;
    }

    static bool HasToolTip(const QWidget& widget, const PaintedText& text) {
        const auto* view = qobject_cast<const QAbstractItemView*>(widget.parentWidget());
        if (view == nullptr) return !widget.toolTip().isEmpty();
        const QModelIndex index = view->indexAt(text.rect.center().toPoint());
        return !index.data(Qt::ToolTipRole).toString().isEmpty();
    }

    /// What a person acts on must be within reach. An area may be scrolled, but only the way that it has a bar for.
    void Reach(QWidget& widget, QWidget& window) {
        if (widget.focusPolicy() == Qt::NoFocus) return;
        for (const QWidget* at = widget.parentWidget(); at != nullptr; at = at->parentWidget()) {
            const auto* area = qobject_cast<const QAbstractScrollArea*>(at->parentWidget());
            const bool scrolls = area != nullptr && area->horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
            const QRect rect(widget.mapTo(at, QPoint(0, 0)), widget.size());
            if (!scrolls && (rect.left() < -1 || rect.right() > at->width()))
                return Say(widget, "reaches out of " + NameOf(*at), {});
            if (scrolls || at == &window) return;
        }
    }

    /// A text must lie within its widget, and the widget within those that hold it, up to an area that scrolls.
    void Place(QWidget& widget, QWidget& window, const PaintedText& text) {
        constexpr double kSideRoom = 1.5;
        constexpr double kHeightRoom = 4;  // what a font keeps free above and below its letters
        for (QWidget* at = &widget;; at = at->parentWidget()) {
            if (qobject_cast<QAbstractScrollArea*>(at->parentWidget()) != nullptr) return;
            const QRectF rect = text.rect.translated(widget.mapTo(at, QPoint(0, 0)));
            const QRectF room = QRectF(at->rect()).adjusted(-kSideRoom, -kHeightRoom, kSideRoom, kHeightRoom);
            if (!room.contains(rect)) return Say(widget, "cut off by " + NameOf(*at), text.text);
            if (at == &window) break;
        }
        m_placed.push_back({text.text, NameOf(widget), text.rect.translated(widget.mapTo(&window, QPoint(0, 0)))});
    }

    void Overlaps() {
        constexpr double kTouch = 3;
        for (std::size_t i = 0; i < m_placed.size(); ++i) {
            for (std::size_t j = i + 1; j < m_placed.size(); ++j) {
                const QRectF shared = m_placed[i].rect & m_placed[j].rect;
                if (shared.width() > kTouch && shared.height() > kTouch) {
                    m_faults << QString("%1 \"%2\" lies over %3 \"%4\"")
                                    .arg(m_placed[j].widget, m_placed[j].text, m_placed[i].widget, m_placed[i].text);
                }
            }
        }
    }

    void Say(const QWidget& widget, const QString& what, const QString& text) {
        m_faults << QString("%1: %2: \"%3\"").arg(NameOf(widget), what, text);
    }

    static inline const QRegularExpression kFromModule{QStringLiteral("[\\[\\]~]")};

    IsData m_isData;
    QStringList m_faults;
    std::vector<Placed> m_placed;
    int m_seen = 0;
};

}  // namespace rlx::test
