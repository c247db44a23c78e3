// Puts a text on the clipboard, and says so.

// Of a page in a file some browsers refuse the clipboard's interface; what is selected can be copied everywhere.
const copySelected = (text) => {
    const area = document.createElement("textarea");
    area.value = text;
    area.setAttribute("aria-hidden", "true");
    area.className = "heard";
    document.body.append(area);
    const before = document.activeElement;
    area.select();
    const isCopied = document.execCommand("copy");
    area.remove();
    before?.focus();
    return isCopied;
};

export const copy = async (text) => {
    try {
        await navigator.clipboard.writeText(text);
        return true;
    } catch {
        return copySelected(text);
    }
};
