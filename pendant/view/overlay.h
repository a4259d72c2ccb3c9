#pragma once

#include "picture.h"
#include "taughtpoint.h"
#include "trace.h"

#include <QFont>
#include <QPair>
#include <QStringList>

class QPainter;

namespace pendant {
namespace view {

/// A point with where it is.
struct Marker {
    TaughtPoint point;
    Vector at;
};

/// The mark under a pixel, within a finger's width; -1 when there is none. The nearest counts.
int markerAt(const QVector<Marker>& markers, const Camera& camera, const QPointF& pixel);

/// What is drawn flat upon the picture: points, names, the way of the tool, values.
class Overlay {
public:
    struct Content {
        const Picture* picture;
        const ArmChain* chain;
        const Camera* camera;
        QVector<Marker> markers;
        int selected = -1; ///< of the markers
        QString selectedText;
        const Trace* trace;
        QVector<QPair<QString, QString>> values; ///< names and what they stand at
    };

    Overlay(QPainter* painter, const Content& content, const Colours& colours, const QFont& font);

    void draw();

private:
    void drawTrace();
    void drawWobjNames();
    void drawMarkers();
    void drawMarker(const Marker& marker, bool isSelected);
    void drawDrop(const Vector& from);
    void drawSelected();
    void drawValues();
    void drawText(const QPointF& at, const QString& text, const QColor& colour);
    bool takeRoom(const QRectF& room);
    QRectF roomFor(const QPointF& at, const QString& text) const;

    QPainter* m_painter;
    const Content& m_content;
    const Colours& m_colours;
    QFont m_font;
    QFont m_digits;
    QVector<QRectF> m_taken; // by texts
};

} // namespace view
} // namespace pendant
