"""Makes the page of the interface out of the headers: an anchor for each name."""
import html
import re
import textwrap


def names_of(headers):
    return {declaration.name
            for header in headers for section in header.sections for group in section.groups
            for declaration in group.declarations}


class Writer:
    def __init__(self, headers):
        self.names = names_of(headers)
        self.seen = set()

    def linked(self, text):
        """Names of the interface lead to where they are told of."""
        return re.sub(r"\b[A-Za-z_]\w+\b",
                      lambda word: f'<a href="#{word.group()}">{word.group()}</a>' if word.group() in self.names
                      else word.group(), html.escape(text, quote=False))

    def prose(self, comment):
        """Paragraphs as such; what is indented, and tables of words and their meaning, as they stand."""
        out = []
        for paragraph in re.split(r"\n\s*\n", comment):
            lines = paragraph.splitlines()
            aligned = any(line.startswith(" ") or re.search(r"\S {2,}\S", line) for line in lines)
            if aligned:
                out.append(f"<pre>{html.escape(textwrap.dedent(paragraph), quote=False)}</pre>")
            else:
                out.append(f"<p>{self.linked(paragraph)}</p>")
        return "\n".join(out) if comment else ""

    def anchor(self, name):
        if name in self.seen:
            raise SystemExit(f"{name} is declared twice")
        self.seen.add(name)
        return f'id="{name}"'

    def constants(self, group):
        rows = [f'<tr {self.anchor(constant.name)}><td><code>{constant.name}</code></td>'
                f'<td><code>{html.escape(constant.text)}</code></td><td>{self.linked(constant.remark)}</td></tr>'
                for constant in group]
        return "<table>\n<thead><tr><th>name</th><th>value</th><th></th></tr></thead>\n" + "\n".join(rows) + "\n</table>"

    def declared(self, declaration):
        remark = f"\n<p>{self.linked(declaration.remark)}</p>" if declaration.remark else ""
        return (f'<h4 {self.anchor(declaration.name)}>{declaration.name}</h4>\n'
                f'<pre class="declaration">{html.escape(declaration.text, quote=False)}</pre>{remark}')

    def group(self, group):
        constants = [declaration for declaration in group.declarations if declaration.kind == "constant"]
        others = [self.declared(declaration) for declaration in group.declarations if declaration.kind != "constant"]
        return "\n".join(others + [self.prose(group.comment)] + ([self.constants(constants)] if constants else []))

    def page(self, headers):
        out = []
        for header in headers:
            title, _, rest = header.comment.partition("\n")
            out.append(f'<h2 id="{header.name}">{html.escape(title)}</h2>\n{self.prose(rest.strip(chr(10)))}')
            for section in header.sections:
                if section.title:
                    identifier = re.sub(r"\W+", "-", f"{header.name} {section.title}".lower())
                    out.append(f'<h3 id="{identifier}">{html.escape(section.title)}</h3>')
                out.extend(self.group(group) for group in section.groups)
        return "\n".join(out)


def index_of(headers):
    """All names in alphabetical order, each a link."""
    links = [f'<a href="#{name}">{name}</a>' for name in sorted(names_of(headers), key=str.lower)]
    return '<h2 id="names">All names</h2>\n<p class="names">' + " ".join(links) + "</p>"


def reference_page(headers):
    introduction = '<p>What the headers declare, with their comments. <a href="#names">All names</a> stand at the end.</p>'
    return "\n".join([introduction, Writer(headers).page(headers), index_of(headers)])
