# SPDX-License-Identifier: MIT
"""One control of the program in the accessibility tree."""

from waiting import Missing


class Control:
    """One node of the accessibility tree."""

    def __init__(self, node, desktop):
        self.node, self.desktop = node, desktop

    @property
    def name(self):
        return self.node.name

    @property
    def text(self):
        text = self.node.queryText()
        return text.getText(0, text.characterCount)

    @property
    def role(self):
        return self.node.getRoleName()

    @property
    def box(self):
        """x, y, width, height on the screen, in pixels."""
        return self.desktop.to_screen(*self.box_as_told)

    @property
    def box_as_told(self):
        """The same in points, from the accessibility tree: under Wayland no window knows its place on the screen."""
        import pyatspi

        box = self.node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return box.x, box.y, box.width, box.height

    @property
    def middle(self):
        x, y, width, height = self.box
        return x + width // 2, y + height // 2

    def has_state(self, name):
        import pyatspi

        return self.node.getState().contains(getattr(pyatspi, "STATE_" + name.upper()))

    def has_focus(self):
        """Whether it has the keyboard, or the editor that a field shows meanwhile has it."""
        inside = [Control(self.node.getChildAtIndex(index), self.desktop) for index in range(self.node.childCount)]
        return any(control.has_state("focused") for control in [self, *inside])

    def press(self):
        """Presses by the accessibility interface, as a screen reader does."""
        action = self.node.queryAction()
        names = [action.getName(index).lower() for index in range(action.nActions)]
        for wanted in ("press", "toggle", "click"):
            if wanted in names:
                action.doAction(names.index(wanted))
                return
        raise Missing(f"{self.name} offers {names}, nothing to press")

    def click(self):
        """Clicks with the mouse."""
        self.desktop.click(*self.middle)

    def focus(self):
        self.node.queryComponent().grabFocus()

    @property
    def description(self):
        return self.node.description

    def set_text(self, text):
        """Sets the text by the accessibility interface, as dictation does."""
        self.node.queryEditableText().setTextContents(text)
