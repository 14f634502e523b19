"""The one table that is printed at the end."""

import dataclasses


@dataclasses.dataclass
class Figure:
    """One row: what was measured, in which unit, and what it should be at most (or exactly, `at_least`)."""

    name: str
    unit: str
    goal: float | None = None  # None: under the peer's
    at_least: bool = False
    judged: bool = True
    values: dict = dataclasses.field(default_factory=dict)

    def verdict(self, peer):
        mine, other = self.values.get("velm"), self.values.get(peer)
        if not self.judged or not isinstance(mine, (int, float)):
            return ""
        goal = other if self.goal is None else self.goal
        if not isinstance(goal, (int, float)):
            return ""
        return "met" if (mine >= goal if self.at_least else mine <= goal) else "MISSED"

    def ratio(self, peer):
        mine, other = self.values.get("velm"), self.values.get(peer)
        if not all(isinstance(value, (int, float)) for value in (mine, other)):
            return ""
        return f"{other / mine:.2f}" if mine else "-"

    def goal_text(self, peer):
        if not self.judged:
            return ""
        if self.goal is None:
            return f"< {peer}"
        return f"{'>=' if self.at_least else '<='} {_number(self.goal)}"


def _number(value):
    if value is None:
        return "-"
    if isinstance(value, str):
        return value
    return f"{value:.0f}" if value == int(value) or abs(value) >= 100 else f"{value:.2f}"


def render(figures, peer="copyq", notes=()):
    """The figures as aligned lines."""
    rows = [("figure", "unit", "goal", "velm", "", peer, f"{peer}/velm")]
    for figure in figures:
        rows.append((figure.name, figure.unit, figure.goal_text(peer), _number(figure.values.get("velm")),
                     figure.verdict(peer), _number(figure.values.get(peer)), figure.ratio(peer)))
    widths = [max(len(row[i]) for row in rows) for i in range(len(rows[0]))]
    lines = ["  ".join(cell.ljust(width) if i < 3 or i == 4 else cell.rjust(width)
                       for i, (cell, width) in enumerate(zip(row, widths))).rstrip() for row in rows]
    lines.insert(1, "-" * max(map(len, lines)))
    return "\n".join(lines + [""] + [f"* {note}" for note in notes])
