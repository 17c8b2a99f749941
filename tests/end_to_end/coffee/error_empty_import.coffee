import { from "x"
