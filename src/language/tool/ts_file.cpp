#include "language/tool/ts_file.h"

#include <pugixml.hpp>

#include <stdexcept>
#include <string_view>

namespace kavela::catalogue {

namespace {

/// Signs that the format cannot hold stand as elements of their own.
std::string textOf(const pugi::xml_node& element) {
    std::string text;
    for (const pugi::xml_node& part : element.children()) {
        if (part.type() == pugi::node_pcdata || part.type() == pugi::node_cdata)
            text += part.value();
        else if (std::string_view(part.name()) == "byte")
            text += static_cast<char>(std::stoi(part.attribute("value").value() + 1, nullptr, 16));
    }
    return text;
}

Message messageIn(const pugi::xml_node& element, const std::string& context) {
    Message message;
    message.context = context;
    message.source = textOf(element.child("source"));
    message.comment = textOf(element.child("comment"));
    message.isCounted = std::string_view(element.attribute("numerus").value()) == "yes";
    const pugi::xml_node translation = element.child("translation");
    const std::string_view state = translation.attribute("type").value();
    message.isGone = state == "vanished" || state == "obsolete";
    message.isFinished = state.empty();
    if (message.isCounted)
        for (const pugi::xml_node& form : translation.children("numerusform"))
            message.forms.push_back(textOf(form));
    else
        message.forms.push_back(textOf(translation));
    return message;
}

void addMessage(pugi::xml_node context, const Message& message) {
    pugi::xml_node element = context.append_child("message");
    if (message.isCounted)
        element.append_attribute("numerus") = "yes";
    element.append_child("source").text() = message.source.c_str();
    if (!message.comment.empty())
        element.append_child("comment").text() = message.comment.c_str();
    pugi::xml_node translation = element.append_child("translation");
    if (!message.isFinished)
        translation.append_attribute("type") = "unfinished";
    if (!message.isCounted)
        translation.text() = message.forms.empty() ? "" : message.forms.front().c_str();
    else
        for (const std::string& form : message.forms)
            translation.append_child("numerusform").text() = form.c_str();
}

} // namespace

Catalogue readCatalogue(const std::filesystem::path& file) {
    pugi::xml_document document;
    // Blanks alone are a text too: those between words that are put side by side.
    const auto result =
        document.load_file(file.c_str(), pugi::parse_default | pugi::parse_ws_pcdata_single);
    if (!result)
        throw std::runtime_error(file.string() + ": " + result.description());
    const pugi::xml_node root = document.child("TS");
    if (!root)
        throw std::runtime_error(file.string() + ": this is no catalogue of translations");
    Catalogue catalogue;
    catalogue.language = root.attribute("language").value();
    for (const pugi::xml_node& context : root.children("context"))
        for (const pugi::xml_node& message : context.children("message"))
            catalogue.messages.push_back(messageIn(message, textOf(context.child("name"))));
    return catalogue;
}

void writeCatalogue(const Catalogue& catalogue, const std::filesystem::path& file) {
    pugi::xml_document document;
    document.append_child(pugi::node_doctype).set_value("TS");
    pugi::xml_node root = document.append_child("TS");
    root.append_attribute("version") = "2.1";
    root.append_attribute("language") = catalogue.language.c_str();
    pugi::xml_node context;
    std::string name;
    for (const Message& message : catalogue.messages) {
        if (!context || message.context != name) {
            context = root.append_child("context");
            context.append_child("name").text() = message.context.c_str();
            name = message.context;
        }
        addMessage(context, message);
    }
    if (!document.save_file(file.c_str(), "    ", pugi::format_default, pugi::encoding_utf8))
        throw std::runtime_error(file.string() + ": cannot be written");
}

} // namespace kavela::catalogue
