"""Whether the links between the pages of a folder lead somewhere."""
from html.parser import HTMLParser
from urllib.parse import unquote, urlsplit


class Page(HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.anchors = set()
        self.links = []
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if "id" in values:
            self.anchors.add(values["id"])
        for name in ("href", "src"):
            if name in values:
                self.links.append(values[name])


def page_of(path):
    return Page(path.read_text(encoding="utf-8"))


def dead_links(folder):
    """A line for each link that leads nowhere."""
    pages = {path.name: page_of(path) for path in sorted(folder.glob("*.html"))}
    dead = []
    for name, page in pages.items():
        for link in page.links:
            parts = urlsplit(link)
            if parts.scheme:  # the web's, which may be out of reach here
                continue
            target = parts.path or name
            if not (folder / target).is_file():
                dead.append(f"{name}: there is no {target}")
            elif parts.fragment and target in pages and unquote(parts.fragment) not in pages[target].anchors:
                dead.append(f"{name}: {target} has no anchor {parts.fragment}")
    return dead
