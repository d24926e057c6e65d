// The support pages' address.
export const page = name => "https://orvane.example/studio/" + name;
