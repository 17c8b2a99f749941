export default class Thing
export answer = 42
export { a, b as c }
export * from "./all"
export { x } from "./x"
