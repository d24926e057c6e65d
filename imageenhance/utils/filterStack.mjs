// The order of an image's filters by their names. A name is its category, with a number from 2 on for every further
// filter of that category.

const raw = "RAW";
const enhance = "Enhance";
const inpaint = "Inpaint";

export function categoryOf(name) {
    return name.replace(/\d+$/, "");
}

// The category while it is free, else with the first free number.
export function adjustedName(stack, category) {
    if (!stack.includes(category))
        return category;
    let number = 2;
    while (stack.includes(category + number))
        ++number;
    return category + number;
}

// RAW in front, Enhance at the end, all else behind the others and before Enhance.
export function inserted(stack, name) {
    const rest = Array.from(stack).filter(other => other !== name);
    if (name === raw)
        return [name, ...rest];
    if (name !== enhance && rest[rest.length - 1] === enhance)
        return [...rest.slice(0, -1), name, enhance];
    return [...rest, name];
}

// As the column shows an order: by the rules above, no name twice.
export function normalised(order) {
    const once = [...new Set(order)];
    const first = once.filter(name => categoryOf(name) === raw);
    const last = once.filter(name => name === enhance);
    return [...first, ...once.filter(name => categoryOf(name) !== raw && name !== enhance), ...last];
}

export function without(stack, name) {
    return Array.from(stack).filter(other => other !== name);
}

// Whether the user may drag this filter, and whether another may be dragged to its place.
export function isMovable(name, category, locked) {
    return name !== enhance && category !== raw && category !== inpaint && !locked;
}

// What an Inpaint that opens locks: from the first filter that is not locked up to it.
export function toLock(stack, name, isLocked) {
    const order = Array.from(stack);
    const end = order.indexOf(name);
    const begin = order.findIndex(other => !isLocked(other));
    return begin < 0 ? [] : order.slice(begin, Math.max(begin, end));
}

// What an Inpaint that goes unlocks: from the Inpaint before it, itself included, up to it.
export function toUnlock(stack, name) {
    const order = Array.from(stack);
    const end = order.indexOf(name);
    let begin = 0;
    for (let i = 0; i < end; ++i) {
        if (categoryOf(order[i]) === inpaint)
            begin = i;
    }
    return order.slice(begin, Math.max(begin, end));
}
