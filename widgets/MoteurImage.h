// What the engines of icons that are drawn have in common: a picture of an icon is the icon on nothing.
#pragma once

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

class MoteurImage : public QIconEngine {
public:
    QPixmap pixmap(const QSize& taille, QIcon::Mode mode, QIcon::State etat) override {
        QPixmap image(taille);
        image.fill(Qt::transparent);
        QPainter peintre(&image);
        paint(&peintre, QRect(QPoint(0, 0), taille), mode, etat);
        return image;
    }
};
