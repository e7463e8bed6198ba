#include "app/image_lists.h"

#include <QPixmap>

#include <array>

static void InitProgramResources()
{
    // Resources of a static library are linked in only where they are asked for.
    Q_INIT_RESOURCE(tavrin);
}

namespace {

using ImageList = std::array<const char*, 7>;

constexpr ImageList ImToolbar{"web-orders", "reports", "inventory", "customers", "find", "new-invoice", "invoices"};
constexpr ImageList ImageListXP{"inventory", "new-invoice", "invoices", "customers", "reports", "find", "web-orders"};

QIcon ImageOf(const ImageList& list, int number)
{
    return ProgramIcon(QLatin1String(list.at(std::size_t(number - 1))));
}

} // namespace

QIcon ImageOfImToolbar(int number)
{
    return ImageOf(ImToolbar, number);
}

QIcon ImageOfImageListXP(int number)
{
    return ImageOf(ImageListXP, number);
}

QIcon ProgramIcon(const QString& name)
{
    InitProgramResources();
    return QIcon(QStringLiteral(":/icons/%1.svg").arg(name));
}

QPixmap ProgramPicture(const QString& name, QSize size, qreal devicePixelRatio)
{
    return ProgramIcon(name).pixmap(size, devicePixelRatio);
}
