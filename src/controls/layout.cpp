#include "controls/layout.h"

#include "base/guard.h"

#include <QApplication>
#include <QEvent>
#include <QFontInfo>
#include <QFrame>
#include <QGroupBox>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>

#include <algorithm>
#include <cmath>

namespace {
template <typename... Handlers>
struct Overloaded : Handlers... {
    using Handlers::operator()...;
};
template <typename... Handlers>
Overloaded(Handlers...) -> Overloaded<Handlers...>;

constexpr int InstructionsWidth = 320;

/// Scrolls a control that takes the focus into view, all of it where there is room. By itself Qt does so for the Tab
/// key alone. The focus also moves by an access key, by F6 and with a scan.
class FocusFollowingArea : public QScrollArea {
public:
    FocusFollowingArea()
    {
        On(qApp, &QApplication::focusChanged, &m_following,
            [this](const QWidget* before, QWidget* now) { Follow(before, now); });
    }

private:
    void Follow(const QWidget* before, QWidget* now)
    {
        // A click goes where the user sees it, and a window that comes to the front again shows what it did.
        const QWidget* content = widget();
        if (!before || !now || !content || !content->isAncestorOf(now)
            || QGuiApplication::mouseButtons() != Qt::NoButton)
            return;
        constexpr int Gap = 10;
        const QRect place(now->mapTo(content, QPoint()), now->size());
        const QSize room = viewport()->size();
        if (place.width() > room.width() || place.height() > room.height())
            return ensureWidgetVisible(now);
        ensureVisible(place.center().x(), place.center().y(), place.width() / 2 + Gap, place.height() / 2 + Gap);
    }

    /// The focus also moves while a window goes, when the area is half destroyed. This goes first.
    QObject m_following;
};

template <typename BoxLayout>
BoxLayout* Filled(BoxLayout* box, std::initializer_list<LayoutItem> items)
{
    for (const LayoutItem& item : items)
        std::visit(Overloaded{
                       [&](QWidget* widget) { box->addWidget(widget); },
                       [&](QLayout* layout) { box->addLayout(layout); },
                       [&](Stretch stretch) { box->addStretch(stretch.factor); },
                       [&](Gap gap) { box->addSpacing(gap.pixels); },
                   },
            item);
    return box;
}

QWidget* FirstControl(QLayout* layout)
{
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        if (QWidget* widget = item->widget(); widget && widget->focusPolicy() != Qt::NoFocus)
            return widget;
        if (item->layout())
            if (QWidget* widget = FirstControl(item->layout()))
                return widget;
    }
    return nullptr;
}

QWidget* ControlOf(const LayoutItem& field)
{
    if (auto* const* widget = std::get_if<QWidget*>(&field))
        return *widget;
    if (auto* const* layout = std::get_if<QLayout*>(&field))
        return FirstControl(*layout);
    return nullptr;
}

// Beside a tall control a label centred in height would stand far from the text that it names.
bool IsTall(const QWidget* control)
{
    return control && control->sizePolicy().verticalPolicy() == QSizePolicy::Expanding;
}

void AddLine(QGridLayout* grid, int line, int column, const FieldLine& field)
{
    QWidget* control = ControlOf(field.field);
    if (control)
        SetLabelOf(field.label, control);
    grid->addWidget(field.label, line, column, Qt::AlignLeft | (IsTall(control) ? Qt::AlignTop : Qt::AlignVCenter));
    std::visit(Overloaded{
                   [&](QWidget* widget) { grid->addWidget(widget, line, column + 1); },
                   [&](QLayout* layout) { grid->addLayout(layout, line, column + 1); },
                   [](auto) {},
               },
        field.field);
}

QLabel* PlainLabel(const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// Fewer in a larger font.
double TwipsAPixel()
{
    constexpr double TwipsAStandardPixel = 15;
    constexpr double StandardFontPixels = 12;
    return TwipsAStandardPixel / std::max(1.0, QFontInfo(QApplication::font()).pixelSize() / StandardFontPixels);
}

/// Keeps a wrapped label as high as its text, also in a window that was given less height than its layout asks for.
class WholeText : public QObject {
public:
    explicit WholeText(QLabel* label)
        : QObject(label)
        , m_label(label)
    {
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
            m_label->setMinimumHeight(m_label->heightForWidth(m_label->width()));
        return QObject::eventFilter(watched, event);
    }

private:
    QLabel* m_label;
};

QString WithoutMnemonic(QString text)
{
    static const QRegularExpression mnemonic(QStringLiteral("&(.)"));
    return text.replace(mnemonic, QStringLiteral("\\1"));
}
} // namespace

Stretch stretch(int factor)
{
    return {factor};
}

Gap gap(int pixels)
{
    return {pixels};
}

QVBoxLayout* column(std::initializer_list<LayoutItem> items)
{
    return Filled(new QVBoxLayout, items);
}

QHBoxLayout* row(std::initializer_list<LayoutItem> items)
{
    return Filled(new QHBoxLayout, items);
}

FieldLine::FieldLine(const QString& labelText, LayoutItem item)
    : label(PlainLabel(labelText))
    , field(item)
{
}

FieldLine::FieldLine(QLabel* labelControl, LayoutItem item)
    : label(labelControl)
    , field(item)
{
}

QGridLayout* fields(std::initializer_list<FieldLine> lines)
{
    return fieldColumns({lines});
}

void AddFieldLine(QGridLayout* fields, const FieldLine& line)
{
    AddLine(fields, fields->rowCount(), 0, line);
}

QGridLayout* fieldColumns(std::initializer_list<std::initializer_list<FieldLine>> blocks)
{
    // Each block takes two columns; an empty one between blocks keeps a label off the block before it.
    constexpr int BlockColumns = 3;
    constexpr int BlockGap = 12;
    auto* grid = new QGridLayout;
    int column = 0;
    for (const auto& block : blocks) {
        int line = 0;
        for (const FieldLine& field : block)
            AddLine(grid, line++, column, field);
        grid->setColumnStretch(column + 1, 1);
        if (column > 0)
            grid->setColumnMinimumWidth(column - 1, BlockGap);
        column += BlockColumns;
    }
    return grid;
}

QWidget* group(const QString& title, QLayout* content)
{
    auto* box = new QGroupBox(title);
    box->setLayout(content);
    return box;
}

QScrollArea* scrolling(QWidget* content)
{
    auto* area = new FocusFollowingArea;
    area->setWidget(content);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    // What lies behind, such as the tint of a titled frame, shows through.
    area->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    return area;
}

QLabel* instructions(const QString& text)
{
    auto* label = new QLabel;
    MakeInstructions(label, text);
    return label;
}

void MakeInstructions(QLabel* label, const QString& text)
{
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setWordWrap(true);
    label->setFrameStyle(QFrame::StyledPanel);
    label->setMargin(6);
    label->setMinimumWidth(InstructionsWidth);
    // Without this the line would keep the height that it needs at its narrowest.
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    label->setSizePolicy(policy);
    label->installEventFilter(new WholeText(label));
}

QLabel* heading(const QString& text)
{
    QLabel* label = PlainLabel(text);
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.3);
    label->setFont(font);
    return label;
}

void SetLabelOf(QLabel* label, QWidget* control)
{
    QString name = WithoutMnemonic(label->text()).trimmed();
    // In French a blank stands before the colon.
    if (name.endsWith(u':'))
        name = name.chopped(1).trimmed();
    label->setBuddy(control);
    // A screen reader would speak it in place of what a label or an option shows.
    if (qobject_cast<QLabel*>(control) || qobject_cast<QRadioButton*>(control))
        return;
    control->setAccessibleName(name);
    // A control made of parts takes the focus by a part, and that part is what a screen reader speaks.
    if (control->focusPolicy() & Qt::TabFocus)
        return;
    for (QWidget* part : control->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (part->focusPolicy() & Qt::TabFocus)
            part->setAccessibleName(name);
}

void ShowAsItStands(QLabel* label, const QString& text)
{
    label->setTextFormat(Qt::PlainText);
    label->setText(QString(text).replace(u'&', QStringLiteral("&&")));
    if (QWidget* control = label->buddy())
        SetLabelOf(label, control);
}

QString PlainToolTip(const QString& text)
{
    // Without a tag Qt would not wrap it, and would show the escapes.
    return text.isEmpty() ? QString()
                          : QStringLiteral("<span style='white-space:pre-wrap'>%1</span>").arg(text.toHtmlEscaped());
}

void SetPlainToolTip(QWidget* widget, const QString& text)
{
    widget->setToolTip(PlainToolTip(text));
}

int TwipsToPixels(int twips)
{
    return int(twips / TwipsAPixel());
}

int PixelsToTwips(int pixels)
{
    return int(std::lround(pixels * TwipsAPixel()));
}
