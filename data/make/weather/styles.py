"""The two ways of drawing: every method returns SVG text for one kind of shape."""

import shapes


class Colour:
    """Filled shapes with a fine outline, so that white stands out on white and dark on dark."""

    DEFS = """
<linearGradient id="sun" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#ffd85a"/><stop offset="1" stop-color="#ffab1f"/></linearGradient>
<linearGradient id="light" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#ffffff"/><stop offset="1" stop-color="#cfdbe8"/></linearGradient>
<linearGradient id="grey" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#c6d1de"/><stop offset="1" stop-color="#93a4b8"/></linearGradient>
<linearGradient id="dark" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#8e9db1"/><stop offset="1" stop-color="#5f7088"/></linearGradient>
<linearGradient id="bolt" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#ffe066"/><stop offset="1" stop-color="#ffb000"/></linearGradient>
<linearGradient id="ice" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#ffffff"/><stop offset="1" stop-color="#a9dcf7"/></linearGradient>"""
    RIM = {"light": "#8ea2b8", "grey": "#75889e", "dark": "#4b5b72"}

    def sun(self, x, y, radius, cloud=None):
        ray = shapes.rays(x, y, radius * 1.38, radius * 1.78, 8)
        return (f'<path d="{ray}" stroke="#f59a0b" stroke-width="{radius * 0.26:.2f}" stroke-linecap="round"/>'
                f'<circle cx="{x}" cy="{y}" r="{radius}" fill="url(#sun)" stroke="#f08c00" stroke-width="2.5"/>')

    def cloud(self, x, y, width, tone="light", hidden_by=None):
        return (f'<path d="{shapes.cloud(x, y, width)}" fill="url(#{tone})" stroke="{self.RIM[tone]}" '
                'stroke-width="2.5" stroke-linejoin="round"/>')

    def water(self, path, width):
        return f'<path d="{path}" fill="none" stroke="#2a8be6" stroke-width="{width}" stroke-linecap="round"/>'

    def snow(self, path, width=3.4):
        return (f'<path d="{path}" fill="none" stroke="#2f9bd8" stroke-width="{width + 2}" stroke-linecap="round"/>'
                f'<path d="{path}" fill="none" stroke="#d9f1ff" stroke-width="{width - 1.2}" stroke-linecap="round"/>')

    def ball(self, x, y, radius):
        return f'<circle cx="{x}" cy="{y}" r="{radius}" fill="url(#ice)" stroke="#3f97cc" stroke-width="2.4"/>'

    def bolt(self, x, y, size):
        return (f'<path d="{shapes.bolt(x, y, size)}" fill="url(#bolt)" stroke="#d98200" stroke-width="2.5" '
                'stroke-linejoin="round"/>')

    def fog(self, path):
        return (f'<path d="{path}" fill="none" stroke="#6f8298" stroke-width="8.5" stroke-linecap="round"/>'
                f'<path d="{path}" fill="none" stroke="#c3cfdc" stroke-width="4.5" stroke-linecap="round"/>')

    def question(self, x, y):
        return (f'<path d="{shapes.question_mark(x, y)}" fill="none" stroke="#4b5b72" stroke-width="6.5" '
                f'stroke-linecap="round"/><circle cx="{x}" cy="{y + 26}" r="4.4" fill="#4b5b72"/>')


class Line:
    """Strokes of one width in middle tones that read on light and on dark ground."""

    DEFS = ""
    TONE = {"light": "#7f97b0", "grey": "#7f97b0", "dark": "#7288a2"}

    masks = 0  # over all drawings, so that a sheet of many has no name twice

    def behind(self, drawing, hidden_by):
        """What lies behind a cloud ends a little before the cloud's line."""
        if not hidden_by:
            return drawing
        Line.masks += 1
        hole = f'<path d="{hidden_by}" fill="#000" stroke="#000" stroke-width="13"/>'
        return (f'<mask id="m{Line.masks}" maskUnits="userSpaceOnUse" x="0" y="0" width="128" height="128">'
                f'<rect width="128" height="128" fill="#fff"/>{hole}</mask><g mask="url(#m{Line.masks})">{drawing}</g>')

    def stroke(self, path, colour, width=6):
        return (f'<path d="{path}" fill="none" stroke="{colour}" stroke-width="{width}" stroke-linecap="round" '
                'stroke-linejoin="round"/>')

    def sun(self, x, y, radius, cloud=None):
        drawing = (f'<circle cx="{x}" cy="{y}" r="{radius}" fill="none" stroke="#ee9a12" stroke-width="6"/>'
                   + self.stroke(shapes.rays(x, y, radius * 1.48, radius * 1.82, 8, cloud), "#ee9a12"))
        return self.behind(drawing, shapes.cloud(*cloud) if cloud else None)

    def cloud(self, x, y, width, tone="light", hidden_by=None):
        return self.behind(self.stroke(shapes.cloud(x, y, width), self.TONE[tone]), hidden_by)

    def water(self, path, width):
        return self.stroke(path, "#2f8fe3", min(width, 6))

    def snow(self, path, width=3.4):
        return self.stroke(path, "#45a9e0", width)

    def ball(self, x, y, radius):
        return f'<circle cx="{x}" cy="{y}" r="{radius}" fill="none" stroke="#45a9e0" stroke-width="4.4"/>'

    def bolt(self, x, y, size):
        return self.stroke(shapes.bolt(x, y, size), "#ee9a12", 5)

    def fog(self, path):
        return self.stroke(path, "#7f97b0")

    def question(self, x, y):
        return (self.stroke(shapes.question_mark(x, y), "#7f97b0")
                + f'<circle cx="{x}" cy="{y + 26}" r="4.4" fill="#7f97b0"/>')
