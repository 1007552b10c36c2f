"""The main job as a player does it: fills in a sample card, saves it, opens it again, zooms, exports
it as an image in each format, copies it to the clipboard and prints it to a file.

For the demonstration and for the tests of the packages, which run it on other systems' homes.
"""

import desktop

CARD = "Two Over One"
TEXT = "Ax 3^h+ ^s"
EXPORT_ROW, COPY_ROW = 8, 10  # of the File menu, counted from 0
JPEG = f"{CARD}.gif.jpg"  # a name that makes a JPEG file of a GIF
STAMP_HEIGHT = 40  # pixels at the foot of an image, where the time stands


def say(text):
    print(text, flush=True)


def widest_empty(card, texts, screen_height):
    """The widest text area that is empty and wholly on the screen."""
    empty = [number for number, text in texts.items() if not text]
    shown = [number for number in empty if sum(card.box(card.texts[number])[1::2]) < screen_height]
    return max(shown, key=lambda number: card.texts[number][2])


def first_unset(card, marks, screen_height):
    """The first mark that isn't set and lies wholly on the screen."""
    return next(number for number, place in sorted(card.marks.items())
                if number not in marks and sum(card.box(place)[1::2]) < screen_height)


def fill_in(home):
    """What was filled in: the number of a mark, and that of a text area that says TEXT."""
    program = desktop.Program(home)
    try:
        say("Started for the first time: the help page is shown. Esc closes it.")
        desktop.wait_for("the options file", (home.data / "ZEV.Ini").exists)
        program.wait_for_title(r"\(unnamed\)")
        program.press("Escape")

        say(f'Opening the sample card "{CARD}".')
        program.press("ctrl+o")
        program.answer_name(CARD)
        program.wait_for_title(rf"\( {CARD} \)$")

        marks, texts = home.records(CARD)
        card = desktop.Card(program)
        height = desktop.screenshot().height - 20
        mark = first_unset(card, marks, height)
        text = widest_empty(card, texts, height)
        say("Clicking a box.")
        card.click_mark(mark)
        program.wait_for_title(r"\*$")
        say(f'Typing "{TEXT}" into a text area.')
        card.click_text(text)
        # One suit symbol is typed, the other comes from its key.
        program.type(TEXT.removesuffix("^s"))
        program.press("F8", "Escape")
        say("Saving the card.")
        program.press("ctrl+s")
        program.wait_for_title(r"\)$")
        say("Leaving the program.")
        program.close()
        program.wait_for_end()
        return mark, text
    finally:
        program.kill()


def export(program, home, row, name):
    """The row is counted in the list of formats; the files lie beside the card."""
    say(f'Exporting the card as "{name}".')
    program.choose_in_file_menu(EXPORT_ROW, "Right", *["Down"] * row)
    program.answer_prompt(name)
    desktop.wait_for(name, lambda: holds(home.data / name, b""))
    program.wait_for_title(r"\)$")
    return home.data / name


def zoom(program):
    """Larger, smaller, and to the screen's width."""
    say("Zooming in and out.")
    scales = [desktop.Card(program).scale]
    for keys in (("ctrl+KP_Add", "ctrl+KP_Add"), ("ctrl+KP_Subtract",), ("ctrl+0",)):
        program.press(*keys)
        scales.append(desktop.Card(program).scale)
    first, larger, smaller, fitting = scales
    if not larger > smaller > max(first, fitting):
        raise RuntimeError(f"the card was shown at these scales: {scales}")


def copy(program, path):
    say("Copying the card to the clipboard.")
    program.choose_in_file_menu(COPY_ROW)
    picture = desktop.wait_for("the picture on the clipboard",
                               lambda: desktop.picture_on_clipboard(program.home.clipboard_kind))
    path.write_bytes(picture)
    return path


def print_to_file(program, path):
    say("Printing the card to a PDF file.")
    program.press("ctrl+p")
    program.answer_prompt(program.home.named(path), f"^Print to PDF: {CARD}$")
    desktop.wait_for("the page", lambda: holds(path, b"%%EOF\n"))
    return path


def holds(path, end):
    return path.is_file() and path.stat().st_size > 1000 and path.read_bytes().endswith(end)


def show_again(home, picture, page, more_images):
    """Saves a picture of the screen, and names the files that were exported and printed."""
    program = desktop.Program(home, home.opening(CARD))
    try:
        say("Started again with the card's name.")
        program.wait_for_title(rf"\( {CARD} \)$")
        desktop.wait_for("the card on the screen", lambda: desktop.Card(program).scale > 0)
        desktop.save_screenshot(picture)
        zoom(program)
        files = [export(program, home, row, f"{CARD}.{ending}")
                 for row, ending in enumerate(("gif", "png", "bmp"))]
        # The ending of the name decides the format, whatever the menu item says.
        files += [export(program, home, 0, name) for name in more_images]
        files.append(copy(program, page.with_name(f"copied.{home.clipboard_kind}")))
        files.append(print_to_file(program, page))
        program.close()
        program.wait_for_end()
        return files
    finally:
        program.kill()


def do(home, picture, page, more_images=()):
    """The whole job in a home where the program was never started: a picture of the screen and a
    printed page lie where they were asked for, and the files that were made are named. The card is
    exported under the names in `more_images`, too. An error says what is wrong with the saved card or
    with the picture."""
    mark, text = fill_in(home)
    marks, texts = home.records(CARD)
    if mark not in marks or texts.get(text) != TEXT:
        raise RuntimeError(f"{home.card(CARD)} lacks what was filled in")
    files = show_again(home, picture, page, more_images)
    if not picture.is_file() or picture.stat().st_size < 20000:
        raise RuntimeError(f"{picture} shows no card")
    return files
