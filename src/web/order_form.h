#pragma once

#include <QString>

struct WebOrderSettings;

/// The address to which the built-in form-mail service takes forms; its host is set when the program is built.
QString FormMailService();

/// The HTML page on which a visitor fills in a request, which the provider of `settings` mails to the business.
/// `service` is the address of the built-in provider. Lines end in CR LF. The addresses are inserted as they stand, and
/// a provider that is neither the built-in nor the custom one leaves the page without its FORM line.
QString OrderFormPage(const WebOrderSettings& settings, const QString& service);
