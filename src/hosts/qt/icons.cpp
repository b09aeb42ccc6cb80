#include "hosts/qt/icons.h"

#include "hosts/qt/qt_text.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>

namespace tavo {

namespace {

constexpr char folderOfDrawings[] = ":/icons/";
// What stands in the drawings for the two colours of the palette.
constexpr char lineColour[] = "#000000", accentColour[] = "#0000ff";

struct ClassIcon {
    std::string_view Letter, Name;
};

constexpr ClassIcon classIcons[] = {
    {"F", "text-x-generic"},
    {"D", "folder"},
    {"P", "image-x-generic"},
    {"M", "audio-x-generic"},
};

struct ListIcon {
    std::string_view ShortName, Number, Name;
};

constexpr ListIcon listIcons[] = {
    {"Tmp", "1", "insert-text"}, {"Fav", "2", "bookmark-new"},
    {"Fil", "3", "view-filter"}, {"Sch", "4", "preferences-desktop-wallpaper"},
    {"Win", "5", "window-new"},
};

QPalette::ColorGroup Group_Of(QIcon::Mode mode)
{
    return mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
}

// A drawing of lines in the colours of the palette in force at the moment when
// it is painted, sharp at any size.
class DrawnIcon : public QIconEngine {
public:
    explicit DrawnIcon(QString name) : name_(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        QSvgRenderer(Coloured(mode)).render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override
    {
        const QString key = Key(size, mode);
        QPixmap picture;
        if (QPixmapCache::find(key, &picture))
            return picture;
        picture = QPixmap(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        paint(&painter, picture.rect(), mode, state);
        painter.end();
        QPixmapCache::insert(key, picture);
        return picture;
    }

    QIconEngine* clone() const override { return new DrawnIcon(*this); }
    QString iconName() override { return name_; }
    bool isNull() override { return false; }

private:
    static QColor Line(QIcon::Mode mode)
    {
        const auto role =
            mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
        return QGuiApplication::palette().color(Group_Of(mode), role);
    }
    static QColor Accent(QIcon::Mode mode)
    {
        const bool plain = mode == QIcon::Normal || mode == QIcon::Active;
        return plain ? Accent_Colour() : Line(mode);
    }

    QString Key(const QSize& size, QIcon::Mode mode) const
    {
        return QString("%1 %2x%3 %4 %5")
            .arg(name_)
            .arg(size.width())
            .arg(size.height())
            .arg(Line(mode).name(), Accent(mode).name());
    }

    QByteArray Coloured(QIcon::Mode mode) const
    {
        QFile file(folderOfDrawings + name_ + ".svg");
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return file.readAll()
            .replace(accentColour, Accent(mode).name().toLatin1())
            .replace(lineColour, Line(mode).name().toLatin1());
    }

    QString name_;
};

// A tool bar half from the theme and half of ours would look patched.
bool Theme_DrawsAll()
{
    const QStringList drawings = QDir(folderOfDrawings).entryList({"*.svg"});
    return std::all_of(drawings.begin(), drawings.end(),
                       [](const QString& file) { return QIcon::hasThemeIcon(file.chopped(4)); });
}

} // namespace

QIcon Icon_Named(std::string_view name)
{
    static const bool fromTheme = Theme_DrawsAll();
    const QString wanted = ToQt(name);
    const bool drawn = QFile::exists(folderOfDrawings + wanted + ".svg");
    if (drawn && !fromTheme)
        return QIcon(new DrawnIcon(wanted));
    return wanted.isEmpty() ? QIcon() : QIcon::fromTheme(wanted);
}

QIcon Icon_OfClass(std::string_view letter)
{
    for (const ClassIcon& row : classIcons)
        if (row.Letter == letter)
            return Icon_Named(row.Name);
    return {};
}

QIcon Icon_OfRow(std::string_view key)
{
    for (const ListIcon& row : listIcons)
        if (row.ShortName == key || row.Number == key)
            return Icon_Named(row.Name);
    return Icon_OfClass(key);
}

// The colour of selections, led towards that of texts until it can be read.
QColor Accent_Colour()
{
    const QPalette palette = QGuiApplication::palette();
    const QColor strong = palette.color(QPalette::Highlight);
    const QColor text = palette.color(QPalette::WindowText);
    const auto mix = [](int one, int other) { return (one * 13 + other * 7) / 20; };
    return QColor(mix(strong.red(), text.red()), mix(strong.green(), text.green()),
                  mix(strong.blue(), text.blue()));
}

QIcon Icon_OfProgram()
{
    return QIcon::fromTheme("tavo", QIcon(":/tavo.svg"));
}

} // namespace tavo
