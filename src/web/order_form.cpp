#include "web/order_form.h"

#include "web/web_order_settings.h"

#include <iterator>
#include <utility>

namespace {

constexpr int DaysOfAMonth = 31;
constexpr const char* MonthNames[] = {"January", "February", "March", "April", "May", "June", "July", "August",
    "September", "October", "November", "December"};
constexpr int MonthsOfAYear = int(std::size(MonthNames));

/// A page under construction, line by line.
class Page {
public:
    Page& operator<<(const QString& line)
    {
        m_text += line + QStringLiteral("\r\n");
        return *this;
    }
    Page& operator<<(const char* line) { return *this << QString::fromLatin1(line); }

    const QString& Text() const { return m_text; }

private:
    QString m_text;
};

QString TwoDigits(int number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

void AddFormLine(Page& page, const WebOrderSettings& settings, const QString& service)
{
    const auto formTo = [](const QString& target) {
        return QStringLiteral("<FORM action=\"%1\" method=\"POST\">").arg(target);
    };
    if (settings.providerIndex == BuiltInProvider)
        page << formTo(service);
    else if (settings.providerIndex == CustomProvider)
        page << formTo(settings.customProvider);
}

/// The fields by which the form-mail service is told what to do.
void AddHiddenFields(Page& page, const QString& email)
{
    const std::pair<const char*, QString> fields[] = {
        {"your_email_address", email},
        {"your_name", email},
        {"email_subject_line", QStringLiteral("Online Booking Request")},
        {"required_fields", QStringLiteral("your_email_address")},
        {"thank_you_title", QStringLiteral("Thank you for your booking")},
        {"return_link_url", QString()},
        {"return_link_name", QStringLiteral("Go Back")},
        {"background_color", QStringLiteral("#FFFFFF")},
        {"text_color", QStringLiteral("#000000")},
        {"link_color", QStringLiteral("#0000FF")},
        {"visited_link_color", QStringLiteral("#8000FF")},
        {"active_link_color", QStringLiteral("#0000FF")},
    };
    for (const auto& [name, value] : fields)
        page << QStringLiteral("<INPUT TYPE=\"hidden\" NAME=\"%1\" VALUE=\"%2\">").arg(QLatin1String(name), value)
             << "";
}

void AddDays(Page& page)
{
    for (int day = 1; day <= DaysOfAMonth; ++day) {
        // The page's fixed text lacks the blank after the ninth, and below after December.
        const QString blank = day == 9 ? QString() : QStringLiteral(" ");
        page << QStringLiteral("           <OPTION VALUE=%1%2>%3").arg(TwoDigits(day), blank, QString::number(day));
    }
}

void AddMonths(Page& page)
{
    for (int month = 1; month <= MonthsOfAYear; ++month) {
        const QString blank = month == MonthsOfAYear ? QString() : QStringLiteral(" ");
        page << QStringLiteral("       <OPTION VALUE=\"%1\"%2>%3")
                    .arg(TwoDigits(month), blank, QLatin1String(MonthNames[month - 1]));
    }
}

void AddYears(Page& page)
{
    for (int year = 2002; year <= 2004; ++year)
        page << QStringLiteral("       <OPTION VALUE=\"%1\" >%1").arg(year);
}

void AddArrivalDate(Page& page)
{
    page << "<TR>"
         << "<TD WIDTH=116>"
         << "<H4>Arrival date:</H4>"
         << "</TD><TD>"
         << "<H4>"
         << "<SELECT NAME=\"arrive_day\">";
    AddDays(page);
    page << "       </SELECT>"
         << "<SELECT NAME=\"arrive_month\">";
    AddMonths(page);
    page << "       </SELECT>"
         << "<SELECT NAME=\"arrive_year\">";
    AddYears(page);
    page << "</SELECT>"
         << ""
         << "</H4>"
         << ""
         << "</TD></TR>";
}

void AddDepartureDate(Page& page)
{
    page << "<TR>"
         << ""
         << "<TD WIDTH=116>"
         << "<H4>Departure date:</H4>"
         << "</TD><TD>"
         << "<H4>"
         << "<SELECT NAME=\"departure_day\">    ";
    AddDays(page);
    page << "       </SELECT>"
         << "<SELECT NAME=\"departure_month\">";
    AddMonths(page);
    page << "</SELECT>"
         << "<SELECT NAME=\"departure_year\">";
    AddYears(page);
    page << "</SELECT>"
         << "</H4>"
         << "</TD></TR>";
}

void AddTextField(Page& page, const char* label, const char* name)
{
    page << "<TR>"
         << "<TD WIDTH=116>" << QStringLiteral("<H4>%1</H4>").arg(QLatin1String(label)) << "</TD><TD>"
         << QStringLiteral("<H4><INPUT TYPE=\"text\" NAME=\"%1\" VALUE=\"\" SIZE=50></H4>").arg(QLatin1String(name))
         << "</TD></TR>";
}

} // namespace

QString FormMailService()
{
    return QStringLiteral(TAVRIN_FORM_MAIL_SITE "/cgi-bin/rom.pl");
}

QString OrderFormPage(const WebOrderSettings& settings, const QString& service)
{
    Page page;
    page << "<HTML>"
         << "<HEAD>"
         << "<TITLE>Online Booking Form</TITLE>"
         << "</HEAD>"
         << ""
         << "<BODY BGCOLOR=\"#FFFFFF\">";
    AddFormLine(page, settings, service);
    page << "&nbsp;<br>"
         << ""
         << "<center><b>Please complete the form below to make an online booking.</b></center>"
         << ""
         << "<H3><CENTER>"
         << "";
    AddHiddenFields(page, settings.email);
    page << "</CENTER></H3>"
         << ""
         << "<BLOCKQUOTE><P><TABLE BORDER=0 CELLSPACING=0> ";
    AddArrivalDate(page);
    AddDepartureDate(page);
    AddTextField(page, "Your name:", "visitor_name");
    AddTextField(page, "Your email address:", "visitor_email_address");
    page << "</TABLE></P>"
         << "<BLOCKQUOTE><H4>Any comments?</H4>"
         << "<P><TEXTAREA NAME=\"Comment\" ROWS=5 COLS=50></TEXTAREA></P>"
         << "</BLOCKQUOTE>"
         << "<H4>&nbsp;</H4>"
         << "<BLOCKQUOTE><P><INPUT TYPE=\"submit\" NAME=\"Submit\" VALUE=\"Submit\">&nbsp;&nbsp;<INPUT TYPE=\"reset\" "
            "VALUE=\"Reset\"></P></BLOCKQUOTE>"
         << "<P>&nbsp;</P>"
         << "</FORM>"
         << "</BODY>"
         << "</HTML>";
    return page.Text();
}
