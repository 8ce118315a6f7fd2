#pragma once

#include <QIcon>
#include <QImage>
#include <QVariant>

namespace tessel::test {

/// The form that a pixmap keeps on its own.
inline QImage pixels(const QImage &image)
{
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// The drawing in the project's own folder of icons.
inline QImage drawing(const QByteArray &fileName)
{
    return pixels(QImage(TESSEL_SOURCE_DIR "/resources/icons/" + QString::fromLatin1(fileName)));
}

/// What \a decoration, an icon, shows in the drawings' size; a null image for anything else.
inline QImage shownBy(const QVariant &decoration)
{
    if (decoration.userType() != QMetaType::QIcon)
        return QImage();
    const QIcon icon = decoration.value<QIcon>();
    return icon.availableSizes() == QList<QSize>({QSize(48, 48)}) ? pixels(icon.pixmap(48, 48).toImage())
                                                                  : QImage();
}

} // namespace tessel::test
