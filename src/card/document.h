// Between the card as the controls show it and the card as a document.
#pragma once

#include "card/card_file.h"

namespace zev {

struct Zevlin;

/// The card as the controls hold it now.
[[nodiscard]] CardDocument documentOf(const Zevlin& form);

/// The same with what the player has typed so far into the field that is open.
[[nodiscard]] CardDocument documentWithTyping(const Zevlin& form);

/// Gives the fields their marks, texts and styles, and the card its partner. Fields that the
/// document doesn't know stay as they are; what it knows of fields that aren't there is passed
/// over.
void showDocument(Zevlin& form, const CardDocument& document);

/// Gives one field the text with its style.
void showField(Zevlin& form, int index, const CardDocument::Text& text);

/// Puts a raw text with doubled ampersands into its field, fitted and with its suit symbols.
void showText(Zevlin& form, int index, const std::string& raw);

} // namespace zev
