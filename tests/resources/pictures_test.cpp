// The pictures in the program are complete and can be drawn.
#include <gtest/gtest.h>

#include <set>

#include <QDirIterator>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {

std::set<QString> picturesBelow(const QString &folder) {
    std::set<QString> names;
    QDirIterator walk(folder, {"*.svg"}, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        names.insert(walk.next().mid(folder.size()));
    return names;
}

/// How many pixels of the picture, drawn `height` pixels high, can be told from `ground`.
int pixelsSeen(const QString &file, int height, QColor ground) {
    QSvgRenderer picture(file);
    const QSize size = picture.defaultSize();
    QImage image(height * size.width() / size.height(), height, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    picture.render(&painter);
    painter.end();
    int seen = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAbs(qGray(image.pixel(x, y)) - qGray(ground.rgb())) > 50) ++seen;
        }
    }
    return seen;
}

} // namespace

TEST(Pictures, EveryDrawnFileIsInTheProgram) {
    const std::set<QString> drawn = picturesBelow(SOURCE_FOLDER "/resources");
    EXPECT_FALSE(drawn.empty());
    EXPECT_EQ(picturesBelow(":/velmar"), drawn);
}

TEST(Pictures, CanBeSeenSmallOnLightAndDarkGround) {
    for (const QString &name : picturesBelow(":/velmar")) {
        const QString file = ":/velmar" + name;
        if (name.startsWith("/formula/")) {
            EXPECT_GT(pixelsSeen(file, 44, Qt::white), 200) << name.toStdString();
            continue;
        }
        EXPECT_GT(pixelsSeen(file, 16, Qt::white), 30) << name.toStdString();
        EXPECT_GT(pixelsSeen(file, 16, QColor(0x26, 0x29, 0x2e)), 30) << name.toStdString();
    }
}
