#include "help/help_sections.h"

namespace zev {
namespace {

constexpr std::string_view usingCards = R"(
MOVING THE CARD WITH THE MOUSE
  * Turn the center wheel of a wheel-mouse to move the card up or down.
  * Put the mouse on any pre-printed words or thick lines, hold the left button down, and drag the card anywhere.
       * The mouse pointer is a hand wherever you can drag the card, and an I-beam wherever you can type.

MOVING THE CARD WITH THE KEYBOARD
  * The arrow keys move the card a little at a time.
  * The Home, End, PageUp, and PageDown keys move to the four corners of the card
       * Home = top left, End = bottom left, PageUp = top right, PageDown = bottom right.
       * If the card is out of sight, Home brings it back.
       * If the blinking cursor is in a text area, press Esc first.

CHECKING BOXES AND CIRCLING LEADS
  * Click a box to check it, or a card of a lead to circle it.  Click it again to remove the mark.
  * If you TAB to a checkmark, you can press SPACE to toggle it. (Shift-TAB moves backwards.)
  * F2 ('Go to first field' on the View menu) goes to the first text area.  From there, TAB leads through the whole card.

ENTERING TEXT
  * Click a text area, or TAB to it, and type.  Text is centered unless you left-justify it.
  * Text that won't fit is shown in progressively smaller sizes, so that you can enter more than you might expect.
  * Boldface: Ctrl+B; Italics: Ctrl+I; Left-justify: Ctrl+L; Highlight: Ctrl+G. They toggle and are on the right-click popup menu.
  * Suit Symbols: F5=Club, F6=Diamond, F7=Heart, F8=Spade.  They display as  ^c  ^d  ^h  ^s  while being edited.
       * The suit symbols themselves appear as soon as you leave the text area.
       * You can also type them yourself:  1^h  becomes 1 and a heart.
  * Ctrl+C copies what you have selected, or else the whole text.  Ctrl+X cuts what you have selected.  Ctrl+V pastes.
       * What you copied in one text area replaces all of the text in another one.  What you cut, or copied in another
         program, goes in at the blinking cursor.
  * Ctrl+Z restores the current text area to its previous contents and settings.  This is a one-level UNDO.
       * With no text area open, Ctrl+Z takes back the last change of the card, then the one before, and so on,
         and Ctrl+Y brings it back.  'Undo' and 'Redo' on the Edit menu tell what they would do.
  * To leave a text area, press TAB to go on to the next one, click somewhere else, or press ESC.
       * What you typed is kept, whichever way you leave.

DISK FILES
  * Use 'New' on the File menu for an empty card, 'Open' (Ctrl+O) for a card that you saved earlier, 'Save' (Ctrl+S)
       to keep the card under its present name, and 'Save As' to keep it under another name.
  * 'Open' shows a list of your cards.  Double-click one, or select it and press Enter.
      * This is the ONLY correct way to open existing cards. Don't try to open them in Windows Explorer.
       * A card that somebody sent you, or that lies elsewhere: drop its file on this window.  Zevlin offers to copy it
         into your cards and to open the copy; the file itself stays as it is.
       * Before the list appears, the card you were working on is closed.  If you click 'Cancel', you have an empty card.
       * Right-click a card in the list to Delete or Rename it.  Delete does NOT ask you first.
       * With a card selected in the list, the Delete key deletes it, F2 renames it, and Shift+F10 opens that popup menu.
  * A '*' behind the card's name at the top of the window means that the card has unsaved changes.
       * You will be warned, and can save them, before another card is opened and before the program ends.
  * The path to your ZEV files is shown at the bottom of the list. Left-clicking it will open that folder.
  * Your cards, settings, and exported card images are stored in 'My Documents\ZEV' or 'Documents\ZEV'.

PRINTING
  * The 'Print' options on the File menu print immediately, so use 'Printer Setup' first, if needed.
       * You can print your own card (Ctrl+P), your partner's card (with your partner's name first), or both.
  * 'Print to PDF' in 'Printer Setup' (on Windows: 'Print to file') asks for a file name and makes a PDF file.
  * 'Printer Setup' settings are remembered within a session, but not from one session to the next.
  * ZEV prints in color or black (not grayscale) based on the printer's capabilities and current settings.
       * (Printing always uses the largest size, regardless of the on-screen Zoom level.)
  * 'Export Image' saves a picture of the card as a file, so that you can email it to someone else.
       * A note at the foot of the window tells the file that was written, here as with a PDF file, and can show it.
       * 'Export Partner Image' does the same with your partner's card, but for the two 'PNG' items:
       * 'PNG' under 'Export Image' saves your partner's card, and 'PNG' under 'Export Partner Image' saves your own.
  * 'Copy to Clipboard' lets you paste a picture of the card into any program that supports images.
  * If you get blank pages, try these things, one at a time:
       * in 'Printer Setup', select another printer, click OK, then select your own printer again;
       * check the paper size, the paper tray, and the color options of your printer;
       * select 'Use alternate print method' on the OPTIONS menu, then use 'Printer Setup' again.
  * If none of these helps, please see the 'FAQ' on the web site.

THE OPTIONS MENU
  * 'My Name' is entered once, and appears on the Names line of all new cards from then on.
  * 'Partner's Name' belongs to this card only.  Enter it if you want to print the card for your partner as well.
       Otherwise, the printed Partner's card will show the name of the card (the file name).
       * The Names line is an ordinary text area: you can change what it says at any time.
  * 'Zoom' and 'Fit' only affect the screen image size; the card always prints at about 8 x 8-1/2 inches.
       * They are on the View menu.  Ctrl and + (the = key) makes the card bigger, Ctrl and - makes it smaller,
         and Ctrl+0 fits it to the width of the screen.
  * 'Font size' makes the text in ordinary text areas Smaller, Normal, Larger, or Big.
       * Text that won't fit at the size you choose is still made smaller.
  * 'Boldface' uses boldface in all text areas of all cards, until you turn it off.
  * 'Left-Justify all text' affects this card only.  Turn it off to center everything again.
  * 'Color Management' selects the 'pen' color:
       * 'ACBL Compliant' uses black for most things, red for Alertable ones, and blue for announcements.
       * 'Custom...' lets you select one (non-ACBL compliant) color for all Text and Marks.
  * 'Fill-in checkmarks' uses solid squares, which are more noticeable, instead of checkmarks.
  * To see these instructions again, press F1 or select 'Help' beside the menus.
)";

constexpr std::string_view changingLayout = R"(
CHANGING THE CARD LAYOUT WITH THE 'DESIGN' MENU
  * The Design menu is hidden.  Use 'Show the Design Menu' on the OPTIONS menu (Shift+Ctrl+D) to show it or hide it.
       * It works only with a blank card, so you will be asked to save the card you are working on.
       * It changes the layout of ALL your cards, those that you made earlier, too.
       * As soon as it is shown, 'Show all Marks' is on: every mark and text area appears, and can be changed.
  * Use 'Show all Marks' (Ctrl+A) to go back to normal and keep the Design menu, and again to go on with the design.
  * To move something, drag it with the left button.
  * To change the width of a text area, hold Ctrl down and drag it with the left button.
  * To change the color of something, right-click it and select Black, Red, or Blue.
        NOTE: The original colors are the ACBL's, and they have specific meanings (red=Alertable, blue=NT)
  * To add something, select its size, color, and shape on the Design menu, and press the right button where it belongs.
       * Before you let the button go, you can drag a mark to its exact place, or a text area to its width.
  * Ctrl+Z undoes the last move, or removes what you added last.  Only one step can be undone.
  * To remove something from the design, just drag it off any edge of the card image.

DEFINING OR CHANGING THE 'TAB' SEQUENCE
  * Select 'Set Tab sequence' on the Design menu.  If there is a sequence, you can modify it or start a new one.
  * Click the text areas and checkmarks in the order in which TAB is to visit them.  Each one flashes.
       * The first click only says where you start; each further click makes TAB go there from the one before.
  * Select 'Set Tab sequence' again when you are finished.
       * You don't have to do this all at once: to change a part of the sequence, record only that part.

SAVING OR DISCARDING THE UPDATED DESIGN AND / OR TAB SEQUENCE
  * 'Save Design' on the Design menu makes your changes permanent, for all cards.
  * Changing the on-screen card size (Zooming) or Exiting the program discards all unsaved changes.

MOVING MANY THINGS AT ONCE
  * If your screen uses a custom font size, marks and text may not line up with the printed card, because the
       characters then take more room, or less, than they did where the layout was made.
  * 'Auto-adjust' on the Design menu looks for the printed lines and words, and lines everything up with them.
       * It usually works well, but not always.
       * It works best when the card is Zoomed to screen width or larger and 'fill-in checkmarks' is not in use.
  * You can also move all Checkmarks, all Circles, or all Text together.  Select which on the Design menu, and then
       * hold Shift down and press an arrow key to move all of them by one pixel;
       * hold Ctrl down and press an arrow key to stretch or squeeze the space between them a little.
  * If you don't like the result, zoom in or out and back: that restores the permanent settings.
  *** After modifying the design, you must use 'Save Design' on the Design Menu to make the changes permanent.
  *** Changing on-screen card size or exiting the program will discard unsaved design changes.
  *** The program will NOT warn you about losing unsaved design changes.
)";

constexpr std::string_view reporting = R"(
REPORTING PROBLEMS
  * Please write to {support} and say what you did and what happened.
  * If it has to do with printing, please tell us the make and model of your printer.
  * Please attach "Definitions.Ini", "ZEV.Ini", the card that has the problem, and "Trace.txt" if there is one.
       These files are in this folder: {folder}
)";

} // namespace

HelpSections helpSections() { return {usingCards, changingLayout, reporting}; }

} // namespace zev
