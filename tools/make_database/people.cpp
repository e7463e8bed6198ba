#include "people.h"

#include <QStringList>

namespace {

const char* const FirstNames[] = {"Ada", "Aidan", "Alma", "Amélie", "Anders", "Ana", "Beatriz", "Bjørn", "Callum",
    "Cécile", "Chidi", "Clara", "Daisuke", "Dolores", "Edwin", "Élodie", "Emeka", "Esme", "Fatima", "Finn", "François",
    "Freya", "Gianluca", "Greta", "Hamish", "Hedda", "Ibrahim", "Imogen", "Inés", "Ivo", "Jean-Luc", "José", "Jürgen",
    "Kamala", "Keiko", "Lars", "Leila", "Łukasz", "Mairead", "Małgorzata", "Marisol", "Mateus", "Nadia", "Niamh",
    "Noor", "Ofelia", "Omar", "Oscar", "Padraig", "Petra", "Priya", "Quentin", "Rasmus", "Renée", "Rosa", "Saoirse",
    "Seán", "Sigrid", "Søren", "Tamsin", "Teodor", "Thi", "Ulrike", "Valentín", "Wanda", "Xavier", "Yusuf", "Zoë",
    "Zsófia"};

const char* const LastNames[] = {"Abara", "Ahlström", "Almeida", "Ashdown", "Bianchi", "Błaszczyk", "Bramley", "Brück",
    "Castañeda", "Chowdhury", "Cork", "D'Angelo", "D'Souza", "Dąbrowska", "Dubois", "Eklund", "Ellery", "Fairweather",
    "Fitzgerald", "Fontaine", "García Márquez", "Gill", "Grønholt", "Haddad", "Hargreaves", "Hoang", "Ibarra", "Işık",
    "Jensen", "Kaur", "Kovács", "Lefèvre", "Lindqvist", "MacAulay", "Mbeki", "Moreau", "Müller", "N'Diaye", "Nakamura",
    "Novák", "Núñez", "O'Brien", "O'Connell", "O'Hara", "Okafor", "Ölmez", "Papadakis", "Pellegrini", "Pritchard",
    "Quayle", "Rasmussen", "Renshaw", "Šimek", "Sandoval", "St. John", "Strömberg", "Tanaka", "Thistlewood",
    "Trevithick", "Underhill", "van der Berg", "Varga", "Weiß", "Whitlock", "Yıldız", "Zamora", "Żak"};

struct FullName {
    const char* first;
    const char* last;
};
const FullName OtherScripts[] = {{"Ольга", "Смирнова"}, {"Ελένη", "Παπαδοπούλου"}, {"太郎", "山田"}, {"محمد", "الخطيب"},
    {"지민", "김"}, {"नेहा", "शर्मा"}, {"Nebuchadnezzar Alexander", "Featherstonehaugh-Cholmondeley-Wriothesley"}};

const char* const Trades[] = {"Bakery", "Boatyard", "Builders", "Café", "Carpentry", "Chandlers", "Cleaning Services",
    "Décor", "Dental Practice", "Electrical", "Farm", "Florists", "Garage", "Gardens", "Guest House", "Interiors",
    "Joinery", "Landscaping", "Letting Agency", "Nursery School", "Painters", "Plumbing & Heating", "Pottery",
    "Roofing", "Sailing School", "Tea Rooms", "Theatre Company", "Veterinary Surgery", "Workshop"};

const char* const Places[] = {"Anchor", "Bellweather", "Birchwood", "Copper Kettle", "Crow's Nest", "Driftwood",
    "Eastgate", "Fernhill", "Foxglove", "Gull Rock", "Heron", "Ironbridge", "Kingfisher", "Lantern", "Millbrook",
    "Northgate", "Old Mill", "Pilot's", "Quayside", "Rosehip", "Saltmarsh", "Seven Elms", "Tidewater", "Underhill",
    "Wayfarer", "Windmill"};

const char* const LongBusiness = "The Incorporated Society of Harbour Pilots, Lamplighters, Net Menders & Retired "
                                 "Ships' Carpenters of Port Ellery and "
                                 "District, Benevolent Fund";

const char* const Streets[] = {"Anchor Lane", "Bath Street", "Chapel Row", "Church Street", "Dock Road", "Elm Avenue",
    "Fishergate", "Gallows Hill", "Harbour View", "High Street", "King's Road", "Lighthouse Walk", "Market Square",
    "Mill Lane", "North Parade", "Orchard Close", "Pier Approach", "Quay Street", "Ropewalk", "St. Mary's Terrace",
    "Station Road", "The Shambles", "Upper Cliff", "Victoria Crescent", "Weavers' Yard"};

struct Town {
    const char* city;
    const char* state;
    const char* postCode;
};
const Town Towns[] = {{"Port Ellery", "NC", "04101"}, {"Port Ellery", "NC", "04102"}, {"Port Ellery", "NC", "04103"},
    {"Saltmarsh", "NC", "04120"}, {"Gull Rock", "NC", "04133"}, {"Millbrook", "NC", "04210"},
    {"Eastgate", "SC", "05002"}, {"Upper Thornby", "SC", "05117"}, {"St. Brannock's Bay", "SC", "05140"},
    {"Kingsferry", "SC", "05260"}};

QString Line(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

/// The first letters of a name as a mail address can carry them.
QString MailPart(const QString& name)
{
    QString part;
    for (const QChar letter : name.normalized(QString::NormalizationForm_D).toLower())
        if (letter.unicode() < 128 && letter.isLetter())
            part += letter;
    return part;
}

QString Phone(Dice& dice)
{
    return QStringLiteral("(555) %1-01%2")
        .arg(dice.Between(201, 989))
        .arg(dice.Between(0, 99), 2, 10, QLatin1Char('0'));
}

void InventAddress(Party& party, Dice& dice)
{
    const Town& town = dice.Pick(Towns);
    party.address1 = QStringLiteral("%1 %2").arg(dice.Between(1, 240)).arg(Line(dice.Pick(Streets)));
    if (dice.Chance(25))
        party.address2 = QStringLiteral("Flat %1").arg(dice.Between(1, 18));
    party.city = Line(town.city);
    party.state = Line(town.state);
    party.postCode = Line(town.postCode);
    party.country = QStringLiteral("Elleria");
}

QString InventBusinessName(const Party& person, Dice& dice)
{
    if (dice.Chance(2))
        return Line(LongBusiness);
    const QString trade = Line(dice.Pick(Trades));
    if (dice.Chance(30) && !person.lastName.isEmpty())
        return QStringLiteral("%1 & %2 %3").arg(person.lastName, Line(dice.Pick(LastNames)), trade);
    return QStringLiteral("%1 %2").arg(Line(dice.Pick(Places)), trade);
}

void InventPerson(Party& party, Dice& dice)
{
    const bool otherScript = dice.Chance(5);
    const FullName name = otherScript ? dice.Pick(OtherScripts) : FullName{dice.Pick(FirstNames), dice.Pick(LastNames)};
    party.firstName = Line(name.first);
    party.lastName = Line(name.last);
}

/// What people leave out when they are asked for their details.
void LeaveGaps(Party& party, Dice& dice)
{
    if (dice.Chance(30))
        party.email.clear();
    if (dice.Chance(15))
        party.phone.clear();
    if (dice.Chance(85))
        party.fax.clear();
    if (dice.Chance(60))
        party.country.clear();
    if (dice.Chance(5))
        party.lastName.clear();
    if (dice.Chance(4))
        party.address1 = party.address2 = party.city = party.state = party.postCode = QString();
}

} // namespace

Party InventCustomer(Dice& dice)
{
    Party customer;
    InventPerson(customer, dice);
    InventAddress(customer, dice);
    customer.phone = Phone(dice);
    customer.fax = Phone(dice);
    const QString mailName = MailPart(customer.firstName.left(1)) + MailPart(customer.lastName);
    customer.email = QStringLiteral("%1@mail.example").arg(mailName.isEmpty() ? QStringLiteral("post") : mailName);
    LeaveGaps(customer, dice);
    if (dice.Chance(45))
        customer.businessName = InventBusinessName(customer, dice);
    if (!customer.businessName.isEmpty() && dice.Chance(10))
        customer.firstName = customer.lastName = QString();
    return customer;
}

Party InventVendor(Dice& dice, const QString& businessName)
{
    Party vendor;
    vendor.firstName = Line(dice.Pick(FirstNames));
    vendor.lastName = Line(dice.Pick(LastNames));
    vendor.businessName = businessName;
    InventAddress(vendor, dice);
    vendor.phone = Phone(dice);
    vendor.fax = Phone(dice);
    vendor.email = QStringLiteral("orders@%1.example").arg(MailPart(businessName.section(QLatin1Char(' '), 0, 0)));
    return vendor;
}
