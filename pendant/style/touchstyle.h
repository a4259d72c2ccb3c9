#pragma once

#include <QProxyStyle>

namespace pendant {

/// The style beneath the style sheet: what a style sheet cannot say is sized for gloved fingers here.
class TouchStyle : public QProxyStyle {
    Q_OBJECT

public:
    TouchStyle();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
};

} // namespace pendant
