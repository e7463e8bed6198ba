#include "parties/customer_texts.h"

std::string CustomerName(std::string_view firstName, std::string_view lastName, std::string_view businessName)
{
    std::string name(firstName);
    if (!firstName.empty())
        name += ' ';
    name += lastName;
    if (businessName.empty())
        return name;
    if (!lastName.empty())
        name += ' ';
    return name.append("(").append(businessName).append(")");
}

std::string FirstAndLastName(std::string_view firstName, std::string_view lastName)
{
    return std::string(firstName).append(" ").append(lastName);
}

std::string CustomerAddress(std::string_view address1, std::string_view address2)
{
    std::string address(address1);
    if (!address2.empty())
        address.append(", ").append(address2);
    return address;
}
