// Light, dark, or as the system has it; remembered where the browser lets a page remember.

const key = "mask-laboratory-theme";

const remembered = () => {
    try {
        return localStorage.getItem(key);
    } catch {
        return null;
    }
};

const remember = (theme) => {
    try {
        localStorage.setItem(key, theme);
    } catch {
        // a page in a file may have no storage: the theme holds until the page is closed
    }
};

export const setUpTheme = (select) => {
    const use = (theme) => {
        document.documentElement.dataset.theme = theme;
        select.value = theme;
    };
    use(["light", "dark"].includes(remembered()) ? remembered() : "system");
    select.addEventListener("change", () => {
        use(select.value);
        remember(select.value);
    });
};
