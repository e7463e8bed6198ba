#include "words.h"

#include <QFile>
#include <QImage>

#include <stdexcept>

namespace {

constexpr const char* Numbers[] = {"1", "2", "3", "5", "10", "12.50", "0", "25", "100", "4.99"};
constexpr const char* Words[] = {"a", "Tea", "Brass Lantern", "Smith", "O'Brien", "tea", "Main Street 5", "12345",
    "shop@example.com", "(555) 240-0177", "Standard", "Büro & Söhne", "Café", "2026", "3/14/2026",
    "Deliver to the side door."};
constexpr const char* OddNumbers[] = {"-1", "-0.001", "1e9", "1e400", "99999999999", "2147483648", "-2147483649",
    "922337203685477.5807", "1,2,3", "$1,234.50", "(5)", "&H1F", "0.00001", "1e", ".", "-", "+", " ", "NaN", "٣", "½"};
constexpr const char* OddWords[] = {"'", "''", "\"", "'; DELETE FROM item; --", "{id}", "{name}", "%", "_", "[",
    "[a-z]*", "*?#", "#3/14/2026#", "31/2/2026", "0/0/0", "null", "true", "<b>bold</b>", "&File", "%1 %2", "日本語",
    "😀😀", "\u202Eabc", "e\u0301", "\u00A0", "İıß"};
constexpr const char* OddCodes[] = {"4006381333931", "0000000000000", "99999999", "ABC-123-XYZ", "abc", "12345",
    "5012345'678900", "%%%%%%%%", "        ", "123456789012345678901234567890123456789012345678901234567890", "ÄÖÜÄÖÜ"};
constexpr const char* FileNames[] = {"items.csv", "broken.csv", "empty.csv", "wide.csv", "picture.png",
    "no-picture.png", "new.csv", "new.txt", "new.html", "new.pdf", "backup.mdb", "without-extension", "a folder",
    "none/new.csv", "ä ö 'ü'.csv", "db.mdb"};

void Put(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("cannot write " + path.toStdString());
}

} // namespace

QString PickText(Dice& dice)
{
    const int drawn = dice.Between(1, 100);
    if (drawn <= 40)
        return QString::fromUtf8(dice.Pick(Numbers));
    if (drawn <= 88)
        return QString::fromUtf8(dice.Pick(Words));
    if (drawn <= 93)
        return QString::fromUtf8(dice.Pick(OddNumbers));
    if (drawn <= 98)
        return QString::fromUtf8(dice.Pick(OddWords));
    return QString(dice.Between(60, 400), QLatin1Char('x'));
}

QString PickCode(const QStringList& codes, Dice& dice)
{
    return codes.isEmpty() || dice.Chance(30) ? QString::fromUtf8(dice.Pick(OddCodes)) : dice.Pick(codes);
}

QString PickFileName(Dice& dice)
{
    return QString::fromUtf8(dice.Pick(FileNames));
}

void PutFiles(const QString& folder)
{
    const auto path = [&](const char* name) { return folder + QLatin1Char('/') + QString::fromUtf8(name); };
    QByteArray items = "Name,Number,Barcode,Stock,Price,Tax\r\n";
    for (int i = 0; i < 30; ++i)
        items += "\"Lamp, " + QByteArray::number(i) + "\",L" + QByteArray::number(i) + ",50123456789"
            + QByteArray::number(i) + ",7,\"1,234.50\",Standard\r\n";
    Put(path("items.csv"), items);
    Put(path("broken.csv"), QByteArrayLiteral("a,\"b\nc,d\"\"e\r\r\n\"\0\xff\xfe,;\t'\",,\n") + QByteArray(3000, '"'));
    Put(path("empty.csv"), {});
    Put(path("wide.csv"), QByteArray(4000, ',') + "\n'1','2'\n");
    Put(path("no-picture.png"), "this is no picture");
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    if (!picture.save(path("picture.png")))
        throw std::runtime_error("cannot write a picture");
}
