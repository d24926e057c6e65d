// What the recommender is asked and how its answers are read. An entry is a category, a hyphen and a subject, which may
// be empty: "Sharpen-Subject", "Enhance-". A suggestion is `{ filterName, subject }`, `filterName` being a category.
import { categoryOf } from "./filterStack.mjs";

const raw = "RAW";
const enhance = "Enhance";

// What goes with a suggestion for one subject: no other of the same kind of subject. "Lanscape" is spelt like that on
// purpose: one for the whole picture leaves one for the landscape open.
const excludedWith = {
    "Landscape": ["All", "Subject", "Background"],
    "Sky": ["All", "Subject", "Background"],
    "All": ["Subject", "Background", "Lanscape", "Sky"],
    "Background": ["All", "Landscape", "Sky"],
    "Subject": ["All", "Landscape", "Sky"]
};

// The recommender's answer as a suggestion; null for an empty one.
export function parsed(entry) {
    if (entry === "")
        return null;
    const hyphen = entry.indexOf("-");
    return hyphen < 0 ? { filterName: entry, subject: "" } : { filterName: entry.slice(0, hyphen), subject: entry.slice(hyphen + 1) };
}

// A category with both the subject and its background has the whole picture, and nothing else.
export function collapseSubject(entries) {
    const groups = new Map();
    for (const entry of entries) {
        const base = entry.split("-", 1)[0];
        groups.set(base, (groups.get(base) ?? new Set()).add(entry));
    }
    return joined([...groups].map(([base, group]) => {
        const both = [base + "-Subject", base + "-Background"];
        return both.every(entry => group.has(entry)) ? [...both, base + "-All"] : [...group];
    }));
}

// `subjectOf` gives the subject's model of a filter by its name.
export function appliedFilters(order, subjectOf) {
    const counted = Array.from(order).filter(name => ![raw, enhance].includes(categoryOf(name)));
    return collapseSubject(counted.map(name => entryOf(name, subjectOf)));
}

// `unavailable` are entries that can't be suggested whatever the image has.
export function excludedFilters(unavailable, existing, order, subjectOf) {
    const besideExisting = joined(Array.from(existing).map(({ filterName, subject }) =>
        [...(excludedWith[subject] ?? []), subject].map(word => filterName + "-" + word)));
    const applied = Array.from(order).map(name => categoryOf(name) === raw ? "Denoise-All" : entryOf(name, subjectOf));
    return collapseSubject([...unavailable, ...besideExisting, ...applied]);
}

// The label round the subject: "Adjust", "lighting". One that the subject does not divide stands before it.
export function sentence(label, subject, divided) {
    const word = ["", "none"].includes(subject) ? "" : subject.toLowerCase();
    const space = divided ? label.indexOf(" ") : -1;
    return {
        before: space < 0 ? label : label.slice(0, space),
        article: word !== "" && word !== "all",
        subject: word,
        after: space < 0 ? "" : label.slice(space + 1)
    };
}

function joined(lists) {
    return [].concat(...lists);
}

function entryOf(name, subjectOf) {
    return categoryOf(name) + "-" + (subjectOf(name) ?? "");
}
