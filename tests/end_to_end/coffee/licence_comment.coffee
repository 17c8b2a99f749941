###
@preserve Unicode: ©, あ
###
module.exports = {}
