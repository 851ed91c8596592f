export async function scrolls() {}
