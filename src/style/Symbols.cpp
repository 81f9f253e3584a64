// SPDX-License-Identifier: MIT
#include "style/Symbols.h"

#include "style/Drawing.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velto {

namespace {

QPixmap render(const QString& name, const QSize& pixels, const QColor& color)
{
    const auto file = QStringLiteral(":/symbols/%1.svg").arg(name);
    if (pixels.isEmpty() || !QFile::exists(file))
        return {};
    const auto key
        = QStringLiteral("%1 %2x%3 %4").arg(file).arg(pixels.width()).arg(pixels.height()).arg(color.rgba(), 0, 16);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;

    pixmap = QPixmap(pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const double side = std::min(pixels.width(), pixels.height());
    QSvgRenderer(file).render(&painter, QRectF((pixels.width() - side) / 2, (pixels.height() - side) / 2, side, side));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    painter.end();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

class SymbolIconEngine final : public QIconEngine {
public:
    explicit SymbolIconEngine(QString name) : m_name(std::move(name)) { }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const double ratio = painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state));
    }

    QPixmap pixmap(const QSize& pixels, QIcon::Mode mode, QIcon::State) override
    {
        auto color = mode == QIcon::Selected ? QColor(Qt::white) : QGuiApplication::palette().color(QPalette::Text);
        if (mode == QIcon::Disabled)
            color.setAlphaF(static_cast<float>(color.alphaF() * disabledOpacity));
        return render(m_name, pixels, color);
    }

    bool isNull() override { return false; }
    QIconEngine* clone() const override { return new SymbolIconEngine(m_name); }

private:
    QString m_name;
};

} // namespace

QPixmap symbolPixmap(const QString& name, double points, const QColor& color, double devicePixelRatio)
{
    const int side = static_cast<int>(std::lround(points * devicePixelRatio));
    auto pixmap = render(name, {side, side}, color);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

QIcon symbolIcon(const QString& name)
{
    return QIcon(new SymbolIconEngine(name));
}

} // namespace velto
