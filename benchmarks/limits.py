"""Links to docs/performance/limits.md, which accounts for missed goals under its headings."""
import re
import sys
from pathlib import Path

PAGE = Path(__file__).parent.parent / "docs/performance/limits.md"
HEADINGS = set(re.findall(r"^#+ (.*)$", PAGE.read_text(), re.MULTILINE))


def slug(title):
    """A title as file names and anchors have it."""
    return re.sub(r"[^\w-]", "", title.lower().replace(" ", "-"))


def link(account, folder=""):
    if account not in HEADINGS:
        sys.exit(f"report.py: {PAGE.name} has no heading \"{account}\"")
    return f"[{account}]({folder}{PAGE.name}#{slug(account)})"
