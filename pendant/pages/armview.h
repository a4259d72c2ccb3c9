#pragma once

#include "view/gestures.h"
#include "view/overlay.h"
#include "view/picture.h"
#include "view/stancemotion.h"
#include "view/trace.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

class QTouchEvent;

namespace pendant {

/// The robot, drawn, to be turned by finger or mouse. Nothing is drawn while nothing changes or it is hidden.
class ArmView : public QWidget {
    Q_OBJECT

public:
    using Values = QVector<QPair<QString, QString>>;

    explicit ArmView(QWidget* parent = nullptr);

    void setColours(const view::Colours& colours);
    /// Another robot: it is shown whole, and where it has been is forgotten.
    void setArm(const view::ArmGeometry& arm);
    const view::ArmGeometry& arm() const { return m_picture.arm(); }
    void setTool(const QString& tool);
    void setWobj(const QString& wobj);
    /// The robot goes there, smoothly while it is seen.
    void setStance(const view::Stance& stance);
    /// Axes and what they stand at, in a corner of the picture.
    void setValues(const Values& values);
    void setPoints(const QVector<view::TaughtPoint>& points);
    /// What is said of the selected point beside its name.
    void setSelectedText(const QString& text);

    /// Shows all of it.
    void fit();
    void lookFrom(double azimuthDeg, double elevationDeg);

    /// The node of the selected point; empty when none is.
    QString selected() const { return m_selected; }
    const view::Camera& camera() const { return m_camera; }
    QVector<view::Marker> markers() const;
    /// Where the robot is drawn, or will be when it has come there.
    const view::Stance& goal() const { return m_motion.goal(); }
    const Values& values() const { return m_values; }
    QString selectedText() const { return m_selectedText; }
    /// Whether it draws again and again.
    bool isBusy() const { return m_ticks.isActive(); }

signals:
    void selectedChanged(const QString& node);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    bool touchEvent(QTouchEvent* event);
    void act(view::Gestures::Meaning meaning);
    void drawEdge(QPainter* painter) const;
    void select(const QString& node);
    void changed();
    void tick();
    void fitNow();
    view::ArmChain chain() const;
    view::Overlay::Content content(const view::ArmChain* chain) const;

    view::Picture m_picture;
    view::Camera m_camera;
    view::Gestures m_gestures;
    view::StanceMotion m_motion;
    view::Trace m_trace;
    view::Colours m_colours;
    QVector<view::TaughtPoint> m_points;
    Values m_values;
    QString m_selected;
    QString m_selectedText;
    bool m_isFitted = true; ///< until somebody turns it
    bool m_hasStance = false;
    QElapsedTimer m_clock;
    QTimer m_ticks;  // while the robot moves
    QTimer m_settle; // until the picture is worth the finest drawing
};

} // namespace pendant
