#!/usr/bin/python3
# Reads ten pages of a running reader as a screen reader does, over the accessibility
# bus, and compares them with the content files: every word, in order, and every link.
#   read_pages.py DATA
import html
import sys
import time
import xml.etree.ElementTree as ElementTree

import pyatspi


def find_frame():
    desktop = pyatspi.Registry.getDesktop(0)
    for application in [desktop.getChildAtIndex(i) for i in range(desktop.childCount)]:
        if application and application.name == "Quillmere" and application.childCount:
            return application.getChildAtIndex(0)
    return None


def wait_for(find, what):
    for _ in range(100):
        found = find()
        if found:
            return found
        time.sleep(0.1)
    sys.exit("read_pages: " + what)


def children(node):
    return [child for child in (node.getChildAtIndex(i) for i in range(node.childCount)) if child]


def all_of(node, role):
    found = [node] if node.getRoleName() == role else []
    return found + [hit for child in children(node) for hit in all_of(child, role)]


def text_of(node):
    return node.queryText().getText(0, -1)


def read(path):
    pages = ElementTree.parse(path).getroot().iter("Page")
    return {page.findtext("Title"): page for page in pages}


def check(frame, page):
    title = page.findtext("Title")
    wait_for(lambda: [h for h in all_of(frame, "heading") if text_of(h) == title], f"no page {title}")
    assert frame.name.startswith(title), frame.name
    seen = [word for paragraph in all_of(frame, "paragraph") for word in text_of(paragraph).split()]
    # Files carry two layers of escapes, of which the parser takes off one.
    meant = [word for text in page.findall("Text") for word in html.unescape(text.text or "").split()]
    assert seen == meant, f"{title}: {seen} instead of {meant}"
    pushed = [link for link in page.iter("Link") if not 3 <= int(link.findtext("LinkType")) <= 8]
    links = [link for paragraph in all_of(frame, "paragraph") for link in all_of(paragraph, "link")]
    assert len(links) == len(pushed), f"{title}: {len(links)} links instead of {len(pushed)}"
    for link in links:
        name = " ".join(link.name.split())  # no-break blanks as well
        assert name and name in " ".join(meant) and link.description, f"{title}: {link.name}"
    return len(seen), links


def press(node):
    node.queryAction().doAction(0)


def main():
    data = sys.argv[1]
    frame = wait_for(find_frame, "the reader isn't on the bus")
    assert frame.getRoleName() == "frame", frame.getRoleName()
    opening = list(read(data + "/initQMR.xml").values())[0]
    words, links = check(frame, opening)
    press(links[0])
    pages = read(data + "/ScreenQMR.xml")
    first = pages["Screen"]
    pages_read = 1
    for index in range(8):
        count, links = check(frame, first)
        target = links[index].description.removeprefix("page ")
        press(links[index])
        on_page, _ = check(frame, pages[target])
        words += on_page + (count if index == 0 else 0)
        pages_read += 2 if index == 0 else 1
        trail = wait_for(lambda: all_of(frame, "list"), f"no trail on {target}")[0]
        press(children(trail)[0])
    check(frame, first)
    press(all_of(frame, "push button")[0])
    check(frame, opening)
    print(f"read_pages: {words} words on {pages_read} pages, in order")


main()
